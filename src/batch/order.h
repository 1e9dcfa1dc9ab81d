#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace vendrel {

/// One kit that somebody wants.
struct Order {
    std::string Id;  // names its folder; no two are the same, whatever the case of letters
    int Line = 0;    // in the list; 0: a photo of a folder
    std::filesystem::path Photo;
    std::vector<std::string> Words{};  // settings as `vendrel kit` takes them, one word each
    std::vector<std::pair<std::string, std::string>> Fields{};  // all of its row, by heading
};

/// What is wrong with a row, so that the list can be put right at once.
struct OrderFault {
    int Line = 0;
    std::string Column{};  // empty: the row as a whole
    std::string Sentence;
};

struct OrderList {
    std::vector<Order> Orders;
    std::vector<OrderFault> Faults;
    std::vector<std::string> Unused;  // columns that are no settings
};

}  // namespace vendrel
