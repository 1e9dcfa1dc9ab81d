#include "batch/read_orders.h"

#include <algorithm>
#include <set>
#include <utility>

#include "batch/order_columns.h"
#include "convert/photo_decoder.h"
#include "support/csv_table.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/letter_case.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongestId = 100;  // leaves room for the names of the files in its folder

bool MayNameFolder(std::string_view id) {
    const auto harmless = [](char c) {
        return static_cast<unsigned char>(c) >= 0x20 && c != 0x7F &&
               std::string_view("/\\:*?\"<>|").find(c) == std::string_view::npos;
    };
    return !id.empty() && id.size() <= kLongestId && !id.starts_with('.') && !id.ends_with('.') &&
           std::ranges::all_of(id, harmless);
}

class OrderReader {
  public:
    OrderReader(const CsvTable& table, fs::path folder)
        : table_(table), folder_(std::move(folder)) {}

    OrderList Read() {
        const CsvRow& heading = table_.Rows.front();
        for (const std::string& name : heading.Fields) {
            columns_.push_back(ColumnOf(name));
            if (columns_.back().Kind == ColumnKind::Text && !name.empty() &&
                !SameIgnoringCase(name, "note")) {
                list_.Unused.push_back(name);
            }
        }
        for (std::size_t i = 1; i < table_.Rows.size(); ++i) {
            ReadRow(table_.Rows[i]);
        }
        NameTheNameless();
        return std::move(list_);
    }

  private:
    void Fault(const CsvRow& row, std::string column, std::string sentence) {
        list_.Faults.push_back({row.Line, std::move(column), std::move(sentence)});
    }

    void ReadRow(const CsvRow& row) {
        const auto& headings = table_.Rows.front().Fields;
        Order order{.Id = {}, .Line = row.Line, .Photo = {}};
        if (row.Fields.size() > headings.size()) {
            Fault(row, "",
                  "has more fields than there are columns. Put a field with a " +
                      std::string(1, table_.Separator) + " in it into quotes.");
        }
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            ReadField(row, i, order);
        }
        if (order.Photo.empty()) {
            Fault(row, "photo", "is empty. Name the photo of this order.");
        }
        Claim(row, order);
        list_.Orders.push_back(std::move(order));
    }

    void ReadField(const CsvRow& row, std::size_t at, Order& order) {
        const std::string field(row.Field(at));
        const std::string& heading = table_.Rows.front().Fields[at];
        const OrderColumn& column = columns_[at];
        order.Fields.emplace_back(heading, field);
        if (field.empty()) {
            return;
        }
        if (column.Kind == ColumnKind::Id) {
            order.Id = field;
        } else if (column.Kind == ColumnKind::Photo) {
            order.Photo = field;
            if (IsFile(folder_ / field)) {
                order.Photo = folder_ / field;
            }
        }
        try {
            const bool beside = column.Kind == ColumnKind::File && IsFile(folder_ / field);
            const std::string value = beside ? (folder_ / field).string() : field;
            for (std::string& word : WordsOfField(column, value)) {
                order.Words.push_back(std::move(word));
            }
        } catch (const UsageError& error) {
            Fault(row, heading, error.what());
        }
    }

    void Claim(const CsvRow& row, const Order& order) {
        if (order.Id.empty()) {
            return;
        }
        if (!MayNameFolder(order.Id)) {
            Fault(row, "order",
                  "\"" + order.Id +
                      "\" cannot name a folder. Use letters, digits, blanks and dashes.");
        } else if (!ids_.insert(ToLower(order.Id)).second) {
            Fault(row, "order", "\"" + order.Id + "\" is there twice. Give each order its own.");
        }
    }

    // After all others have theirs.
    void NameTheNameless() {
        for (Order& order : list_.Orders) {
            if (!order.Id.empty() || order.Photo.empty()) {
                continue;
            }
            const std::string stem = order.Photo.stem().string();
            const std::string name = MayNameFolder(stem) ? stem : "photo";
            order.Id = name;
            for (int i = 2; !ids_.insert(ToLower(order.Id)).second; ++i) {
                order.Id = name + "-" + std::to_string(i);
            }
        }
    }

    const CsvTable& table_;
    fs::path folder_;
    std::vector<OrderColumn> columns_;
    std::set<std::string> ids_;
    OrderList list_;
};

bool IsPhotoName(const fs::path& file) {
    const std::string ending = ToLower(file.extension().string());
    return std::ranges::any_of(
        kPhotoEndings, [&](std::string_view known) { return ending == "." + std::string(known); });
}

OrderList OrdersOfFolder(const fs::path& folder) {
    std::vector<fs::path> photos;
    for (const auto& entry : EntriesOf(folder)) {
        if (IsPhotoName(entry.path()) && IsFile(entry.path())) {
            photos.push_back(entry.path());
        }
    }
    if (photos.empty()) {
        throw FileError(folder, "holds no photos. Name a folder with photos or a list of orders.");
    }
    std::ranges::sort(photos);
    CsvTable table;
    table.Rows.push_back({1, {"photo"}});
    for (const fs::path& photo : photos) {
        table.Rows.push_back({0, {photo.filename().string()}});
    }
    return OrderReader(table, folder).Read();
}

}  // namespace

OrderList ParseOrders(std::string_view text, const fs::path& file) {
    const CsvTable table = ParseCsv(text, file);
    const auto isPhoto = [](const std::string& name) {
        return ColumnOf(name).Kind == ColumnKind::Photo;
    };
    if (table.Rows.empty() || std::ranges::none_of(table.Rows.front().Fields, isPhoto)) {
        throw FormatError(file, table.Rows.empty() ? 0 : table.Rows.front().Line,
                          "no column is called photo. Let the first row name the columns: photo, "
                          "and order, title, canvas, difficulty and so on.");
    }
    if (table.Rows.size() == 1) {
        throw FormatError(file, 0, "there are no orders in it. Add a row for each.");
    }
    return OrderReader(table, file.parent_path()).Read();
}

OrderList ReadOrders(const fs::path& place) {
    std::error_code unreadable;
    if (fs::is_directory(place, unreadable)) {
        return OrdersOfFolder(place);
    }
    return ParseOrders(ReadTextFile(place), place);
}

std::vector<std::string> WordsOver(const std::vector<std::string>& common, const Order& order) {
    std::vector<std::string> words = common;
    const auto gives = [&](std::string_view option) {
        return std::ranges::any_of(
            order.Words, [&](const std::string& word) { return word.starts_with(option); });
    };
    if (gives("--sets=") || gives("--template=")) {
        words = WithoutOption(WithoutOption(words, "--sets"), "--template");
    }
    for (const auto& [heading, field] : order.Fields) {
        const OrderColumn column = ColumnOf(heading);
        if (column.Kind == ColumnKind::Switch && !field.empty()) {
            words = WithoutOption(words, column.Option);
        }
    }
    words.insert(words.end(), order.Words.begin(), order.Words.end());
    return words;
}

}  // namespace vendrel
