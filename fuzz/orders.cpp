#include "batch/read_orders.h"

#include <algorithm>

#include "fuzz/reader.h"
#include "support/text_file.h"

namespace vendrel::fuzz {

const std::size_t kMemoryPerByte = 512;

// Each order that is read without a fault has a photo and a folder of its own.
void Read(Bytes bytes) {
    const OrderList list = ParseOrders(ToUtf8(TextOf(bytes)), "orders.csv");
    if (!list.Faults.empty()) {
        return;
    }
    std::vector<std::string> ids;
    for (const Order& order : list.Orders) {
        Require(!order.Photo.empty(), "an order without a photo is no fault");
        Require(order.Id.find('/') == std::string::npos && !order.Id.starts_with('.'),
                "an order's folder lies elsewhere");
        ids.push_back(order.Id);
        (void)WordsOver({"--sets=A", "--paintable"}, order);
    }
    std::ranges::sort(ids);
    Require(std::ranges::adjacent_find(ids) == ids.end(), "two orders have one folder");
}

}  // namespace vendrel::fuzz
