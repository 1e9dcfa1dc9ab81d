#include "batch/check_orders.h"

#include <algorithm>
#include <map>
#include <utility>

#include "batch/kit_names.h"
#include "batch/order_columns.h"
#include "batch/read_orders.h"
#include "convert/picture_name.h"
#include "kit/arguments.h"
#include "kit/kit_command.h"
#include "kit/photo_lookup.h"
#include "support/disk.h"
#include "support/error.h"

namespace vendrel {
namespace {

class OrderCheck {
  public:
    OrderCheck(OrderList& list, const BatchOptions& options, const Surroundings& around)
        : list_(list),
          options_(options),
          around_(around),
          folder_(options.Folder, around.Shipped) {}

    void Run() {
        for (Order& order : list_.Orders) {
            FindItsPhoto(order);
            if (FieldsAreRight(order) && SettingsAreRight(order)) {
                SettleKit(order);
            }
        }
        std::ranges::stable_sort(list_.Faults, {}, &OrderFault::Line);
    }

  private:
    void Fault(const Order& order, std::string column, std::string sentence) {
        list_.Faults.push_back({order.Line, std::move(column), std::move(sentence)});
    }

    void FindItsPhoto(Order& order) {
        try {
            if (!order.Photo.empty()) {
                order.Photo = FullPath(FindPhoto(folder_, order.Photo.string()));
            }
        } catch (const Error& error) {
            Fault(order, "photo", error.what());
        }
    }

    // One field after the other, so that the one at fault is named.
    bool FieldsAreRight(const Order& order) {
        bool right = true;
        for (const auto& [heading, field] : order.Fields) {
            const OrderColumn column = ColumnOf(heading);
            const std::vector<std::string> words = WordsOfOne(order, column, field);
            const bool missing =
                column.Kind == ColumnKind::File && !field.empty() && !NamesFile(order, column);
            const std::string sentence = missing ? "there is no file " + field + ". Look for it."
                                         : words.empty() ? ""
                                                         : WrongIn(words);
            if (!sentence.empty()) {
                Fault(order, heading, sentence);
                right = false;
            }
        }
        return right;
    }

    static bool NamesFile(const Order& order, const OrderColumn& column) {
        return std::ranges::any_of(order.Words, [&](const std::string& word) {
            return word.starts_with(column.Option + "=") &&
                   IsFile(word.substr(column.Option.size() + 1));
        });
    }

    // Those of one field alone. A switch that is neither was found when it was read.
    static std::vector<std::string> WordsOfOne(const Order& order, const OrderColumn& column,
                                               const std::string& field) {
        std::vector<std::string> words;
        if (column.Kind == ColumnKind::Words || column.Kind == ColumnKind::Names) {
            for (const std::string& word : WordsOfField(column, field)) {
                words.push_back(word);
            }
        }
        const auto bleed = std::ranges::find_if(
            words, [](const std::string& word) { return word.starts_with("--bleed="); });
        if (bleed != words.end()) {  // makes sense only with its paper
            words.insert(words.end(), order.Words.begin(), order.Words.end());
        }
        return words;
    }

    // What a set of settings is refused for; empty: nothing. Many orders have the same.
    std::string WrongIn(const std::vector<std::string>& words) {
        const auto known = known_.find(words);
        if (known != known_.end()) {
            return known->second;
        }
        std::string sentence;
        try {
            KitOptions options = KitOf(words);
            options.Folder = options_.Folder;
            RequireSettings(options, around_);
        } catch (const Error& error) {
            sentence = error.what();
        }
        return known_[words] = sentence;
    }

    [[nodiscard]] static KitOptions KitOf(const std::vector<std::string>& words) {
        std::vector<std::string_view> line = {"kit"};
        line.insert(line.end(), words.begin(), words.end());
        line.emplace_back("-");
        return ParseArguments(line).Kit;
    }

    bool SettingsAreRight(const Order& order) {
        std::vector<std::string> words = WordsOver(options_.Words, order);
        if (HasLeaflet(words)) {
            const std::vector<std::string> fields = FieldsOf(order);
            words.insert(words.end(), fields.begin(), fields.end());
        }
        const std::string sentence = WrongIn(words);
        if (!sentence.empty()) {
            Fault(order, "", sentence);
        }
        return sentence.empty();
    }

    // What hangs on all settings together: the kit's name, and a place in the print run.
    void SettleKit(Order& order) {
        if (options_.Names.empty() && options_.PrintRun.empty()) {
            return;
        }
        KitOptions kit = KitOf(WordsOver(options_.Words, order));
        if (!kit.Like.empty()) {
            kit = OptionsLike(kit, ReadKitFile(kit.Like));
        }
        if (!options_.PrintRun.empty() && !kit.Outputs.Chosen.Has(OutputId::Pdf)) {
            Fault(order, "outputs", "a print run needs a pdf of each order. Add pdf to it.");
        }
        if (options_.Names.empty()) {
            return;
        }
        const std::string name =
            KitNameOf(order, options_.Names, std::string(TraitsOf(kit.Chosen.Level).Option));
        if (name.empty() || !MayNameKit(name)) {
            Fault(order, "--names",
                  "gives \"" + name +
                      "\", which cannot name files. Leave out slashes, dots and "
                      "control characters.");
        } else {
            NameKit(order, name);
        }
    }

    OrderList& list_;
    const BatchOptions& options_;
    const Surroundings& around_;
    ProgramFolder folder_;
    std::map<std::vector<std::string>, std::string> known_;
};

}  // namespace

void CheckOrders(OrderList& list, const BatchOptions& options, const Surroundings& around) {
    OrderCheck(list, options, around).Run();
}

std::vector<std::string> SentencesOf(const std::vector<OrderFault>& faults,
                                     const std::filesystem::path& list) {
    std::vector<std::string> sentences;
    for (const OrderFault& fault : faults) {
        std::string place = Shown(list);
        place += fault.Line > 0 ? ", line " + std::to_string(fault.Line) : "";
        place += fault.Column.empty() ? "" : ", " + fault.Column;
        sentences.push_back(place + ": " + fault.Sentence);
    }
    return sentences;
}

}  // namespace vendrel
