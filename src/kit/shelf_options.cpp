#include "kit/shelf_options.h"

#include <charconv>

#include "kit/option_kinds.h"

namespace vendrel {
namespace {

Color ToColor(const std::string& option, std::string_view value) {
    const std::string_view digits = value.substr(value.starts_with('#') ? 1 : 0);
    unsigned packed = 0;
    const auto [end, failure] =
        std::from_chars(digits.data(), digits.data() + digits.size(), packed, 16);
    if (digits.size() != 6 || failure != std::errc{} || end != digits.data() + digits.size()) {
        RefuseValue(option, value, "a color as in '#C08060'");
    }
    return Rgb(static_cast<int>(packed >> 16U), static_cast<int>(packed >> 8U & 255U),
               static_cast<int>(packed & 255U));
}

}  // namespace

void AddPaintsOptions(CLI::App& app, PaintsOptions& paints) {
    AddText(app, {"--folder", "DIR", "works in DIR instead of the folder it is started in"},
            paints.Folder);
    AddSwitch(app, {"--owned", "", "lists your own paints alone"}, paints.OwnedOnly);
    AddValue(app, {"--near", "COLOR", "lists the paints that look most like '#C08060'"},
             [&paints](const std::string& option, const std::string& value) {
                 paints.Near = ToColor(option, value);
             });
    AddText(app,
            {"--missing", "KIT",
             "lists the paints of a kit file that you lack, with ml and\npots, and your three "
             "nearest to each"},
            paints.Missing);
    AddText(app,
            {"--import", "FILE",
             "shows the paints that a list means: a table, or a paint a\nline by code or name"},
            paints.Import);
    AddText(app,
            {"--take", "WHICH",
             "with --import: puts them among yours, exact hits alone\n(exact), near ones too (all) "
             "or lines of the list (3,7)"},
            paints.Take);
    AddValue(
        app, {"--label", "PAINT=LABEL", "gives one of your paints another label"},
        [&paints](const std::string&, const std::string& value) { paints.Label.push_back(value); });
    AddText(app, {"--add-catalogue", "FILE", "makes a table of paints one of the catalogues"},
            paints.AddCatalogue);
    AddText(
        app,
        {"--columns", "LIST",
         "where they are in it, as in name=2,hex=5; of set, name,\ncode, hex, red, green, blue, "
         "l, a and b"},
        paints.Columns);
    AddText(app, {"--stickers", "FILE", "writes labels for your pots as a PDF at true size"},
            paints.Stickers);
    AddText(app,
            {"--sheet", "SHEET",
             "with --stickers: a common sheet by its number (list shows\nthem) or labels of a size "
             "on A4, as in 40x20 millimeters"},
            paints.Sheet);
    AddValue(app, {"--used", "N", "with --stickers: labels that the first sheet lacks already"},
             [&paints](const std::string& option, const std::string& value) {
                 paints.Used =
                     static_cast<int>(ToNumber(option, value, {"", 0, 1000, "a number of labels"}));
             });
    AddSwitch(app, {"--json", "", "prints JSON"}, paints.Json);
}

void AddShopOptions(CLI::App& app, ShopOptions& shop) {
    AddText(app, {"--folder", "DIR", "works in DIR instead of the folder it is started in"},
            shop.Folder);
    AddText(app, {"--csv", "FILE", "writes what is to buy as a table"}, shop.Csv);
    AddText(app, {"--pdf", "FILE", "writes it as a page to print and tick off"}, shop.Pdf);
    AddSwitch(app, {"--painted", "", "takes what the kits used off your paints"}, shop.Painted);
    AddSwitch(app, {"--undo", "", "gives back what the last --painted of the kits took"},
              shop.Undo);
    AddSwitch(app, {"--json", "", "prints JSON"}, shop.Json);
    app.add_option("KIT", shop.Kits);
}

void RequireOneTask(const PaintsOptions& paints) {
    const int tasks = (paints.Missing.empty() ? 0 : 1) + (paints.Import.empty() ? 0 : 1) +
                      (paints.AddCatalogue.empty() ? 0 : 1) + (paints.Label.empty() ? 0 : 1) +
                      (paints.OwnedOnly || paints.Near ? 1 : 0) + (paints.Stickers.empty() ? 0 : 1);
    if (tasks > 1) {
        throw UsageError(
            "Choose one of --missing, --import, --label, --add-catalogue, --stickers, or --owned "
            "and --near.");
    }
    if (!paints.Take.empty() && paints.Import.empty()) {
        throw UsageError("--take goes with --import FILE.");
    }
    if ((!paints.Sheet.empty() || paints.Used > 0) && paints.Stickers.empty()) {
        throw UsageError("--sheet and --used go with --stickers FILE.");
    }
    if (!paints.Columns.empty() && paints.AddCatalogue.empty()) {
        throw UsageError("--columns goes with --add-catalogue FILE.");
    }
}

void RequireOneTask(const ShopOptions& shop) {
    if (shop.Kits.empty()) {
        throw UsageError("Name at least one kit file, as in \"vendrel shop beach.kit\".");
    }
    if (shop.Painted && shop.Undo) {
        throw UsageError("Choose --painted or --undo, not both.");
    }
}

}  // namespace vendrel
