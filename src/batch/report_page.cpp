#include "batch/report_page.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "batch/paint_totals.h"
#include "batch/thumbnail.h"
#include "support/decimals.h"
#include "support/error.h"
#include "support/placeholders.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

constexpr std::string_view kHead = R"(<!DOCTYPE html>
<html lang="en">
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>Orders</title>
<style>
:root { color-scheme: light dark; }
body { font: 16px/1.4 system-ui, sans-serif; max-width: 72rem; margin: 2rem auto; padding: 0 1rem; }
h1 { font-size: 1.5rem; margin: 0; }
ol { list-style: none; padding: 0; display: grid; gap: 1rem;
     grid-template-columns: repeat(auto-fill, minmax(30rem, 1fr)); }
@media (max-width: 34rem) { ol { grid-template-columns: 1fr; } }
li { display: flex; gap: 1rem; border: 1px solid #8886; border-radius: .5rem; padding: .75rem; }
li > div { min-width: 0; overflow-wrap: anywhere; }
li h2 { font-size: 1.05rem; margin: 0; }
h2 span { font-weight: normal; }
.photo { opacity: .7; font-size: .85rem; }
.broken { border-color: #b3261e; }
p { margin: .2rem 0; }
img, .none { width: 9rem; flex: none; align-self: start; border-radius: .25rem; }
.none { height: 6rem; background: #8883; }
.look { color: #a15c00; }
.failed { color: #b3261e; }
@media (prefers-color-scheme: dark) { .look { color: #f0b35a; } .failed { color: #ff8a80; } }
small a { margin-right: .6em; }
details { margin: 1rem 0; }
summary { cursor: pointer; }
.scroll { overflow-x: auto; }
table { border-collapse: collapse; margin: .5rem 0; }
td, th { padding: .15rem .9rem .15rem 0; text-align: left; font-weight: normal; }
th { border-bottom: 1px solid #8886; opacity: .75; }
.number { text-align: right; font-variant-numeric: tabular-nums; }
td i { display: inline-block; width: 1.4em; height: 1em; vertical-align: -.12em;
       margin-right: .5em; border: 1px solid #8886; border-radius: .2em; }
</style>
)";

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            default:
                escaped += c;
        }
    }
    return escaped;
}

// The address of a file beside the page. What means something in an address is written in numbers.
std::string AddressOf(const fs::path& file, const fs::path& folder) {
    constexpr std::string_view kPlain = "-_.~/";
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string address;
    for (const char c : file.lexically_relative(folder).string()) {
        const auto byte = static_cast<unsigned char>(c);
        const bool plain = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') ||
                           (c >= 'a' && c <= 'z') || kPlain.find(c) != kPlain.npos;
        if (plain) {
            address += c;
        } else {
            address += {'%', kDigits[byte / 16U], kDigits[byte % 16U]};
        }
    }
    return address;
}

std::string Paragraph(std::string_view text, std::string_view look = {}) {
    const std::string klass = look.empty() ? "" : " class=\"" + std::string(look) + "\"";
    return "<p" + klass + ">" + Escaped(text) + "</p>\n";
}

double NumberIn(const Json& json, const char* place) {
    const Json::json_pointer pointer(place);
    return json.contains(pointer) && json[pointer].is_number() ? json[pointer].get<double>() : 0;
}

std::string FiguresLine(const Json& kit) {
    std::string line = kit.value("difficulty", "") + ", " +
                       Decimals(NumberIn(kit, "/paints/kept"), 0) + " paints, " +
                       Decimals(NumberIn(kit, "/figures/areas"), 0) + " areas on " +
                       Decimals(NumberIn(kit, "/figures/canvasCm"), 0) + " cm, about " +
                       Decimals(NumberIn(kit, "/figures/hours"), 0) + " hours";
    if (kit.contains("plan")) {
        const double pages = NumberIn(kit, "/plan/pages");
        line += ", " + Decimals(pages, 0) + (pages == 1 ? " page" : " pages");
    }
    return line;
}

// Of its kit file; a kit that was moved away has none.
std::string PictureOf(const ManifestEntry& entry, const BatchPlaces& places) {
    const auto kit = std::ranges::find(entry.Files, "kit", &ManifestEntry::File::Output);
    try {
        if (kit != entry.Files.end()) {
            return "<img alt=\"\" src=\"" + ThumbnailOf(ReadKitFile(places.Root() / kit->Place)) +
                   "\">\n";
        }
    } catch (const Error&) {  // a report without this picture is better than none
    }
    return "<span class=\"none\"></span>\n";
}

std::string LinksTo(const ManifestEntry& entry, const BatchPlaces& places) {
    std::string links = "<p><small>";
    for (const ManifestEntry::File& file : entry.Files) {
        links += "<a href=\"" + AddressOf(places.Root() / file.Place, places.Orders()) + "\">" +
                 Escaped(file.Output) + "</a> ";
    }
    return links + "</small></p>\n";
}

// Empty for a column that the list has not.
std::string FieldOf(const Order& order, std::string_view column) {
    const auto found = std::ranges::find_if(
        order.Fields, [&](const auto& field) { return PlaceholderName(field.first) == column; });
    return found == order.Fields.end() ? "" : found->second;
}

std::string ItemOf(const ReportedOrder& order, const BatchPlaces& places) {
    const ManifestEntry& entry = *order.Became;
    const Json kit = Json::parse(entry.Figures, nullptr, false);
    std::string item = std::string(entry.Done ? "<li" : "<li class=\"broken\"") + " id=\"" +
                       Escaped(entry.Order) + "\">" + PictureOf(entry, places) + "<div><h2>" +
                       Escaped(entry.Order) + " <span>" + Escaped(FieldOf(*order.What, "title")) +
                       "</span></h2>\n" +
                       Paragraph(fs::path(entry.Photo).filename().string(), "photo");
    if (const std::string note = FieldOf(*order.What, "note"); !note.empty()) {
        item += Paragraph(note);
    }
    if (!entry.Done) {
        return item + Paragraph(entry.Sentence, "failed") + "</div></li>\n";
    }
    item += Paragraph(FiguresLine(kit));
    for (const std::string& warning : WarningsOf(entry.Figures)) {
        item += Paragraph(warning, "look");
    }
    return item + LinksTo(entry, places) + "</div></li>\n";
}

// The orders that something is the matter with, each a link; nothing without any.
template <class Matters>
std::string LinesAbout(const std::vector<ReportedOrder>& orders, std::string_view what,
                       std::string_view look, Matters matters) {
    std::string links;
    for (const ReportedOrder& order : orders) {
        if (matters(*order.Became)) {
            const std::string name = Escaped(order.Became->Order);
            links += (links.empty() ? "" : ", ");
            links += "<a href=\"#" + name + "\">" + name + "</a>";
        }
    }
    return links.empty() ? ""
                         : "<p class=\"" + std::string(look) + "\">" + std::string(what) + ": " +
                               links + "</p>\n";
}

std::string RowOf(const PaintTotal& total) {
    return "<tr><td><i style=\"background:" + total.Color + "\"></i>" + Escaped(total.Name) +
           "<td>" + Escaped(total.Set) + "<td>" + Escaped(total.Code) + "<td class=\"number\">" +
           Decimals(total.BuyMl, 1) + "<td class=\"number\">" +
           (total.Pots > 0 ? std::to_string(total.Pots) : "") + "<td class=\"number\">" +
           std::to_string(total.Orders.size()) + "\n";
}

std::string PaintsToBuy(const std::vector<PaintTotal>& totals, const BatchPlaces& places) {
    std::string rows;
    int paints = 0;
    int pots = 0;
    double ml = 0;
    for (const PaintTotal& total : totals) {
        if (total.BuyMl > 0) {
            rows += RowOf(total);
            ++paints;
            pots += total.Pots;
            ml += total.BuyMl;
        }
    }
    if (paints == 0) {
        return "";
    }
    return "<details><summary>To buy: " + std::to_string(paints) + " paints, " + Decimals(ml, 0) +
           " ml" + (pots > 0 ? ", " + std::to_string(pots) + " pots" : "") +
           "</summary>\n<div class=\"scroll\"><table><tr><th>Paint<th>Set<th>Code<th "
           "class=\"number\">ml<th class=\"number\">Pots<th class=\"number\">Orders\n" +
           rows + "</table></div>\n<p>All of it as a table: <a href=\"" +
           AddressOf(places.Paints(), places.Orders()) + "\">paints.csv</a></p></details>\n";
}

}  // namespace

std::vector<std::string> WarningsOf(const std::string& figures) {
    constexpr double kSeenAsStretched = 2;  // percent
    const Json kit = Json::parse(figures, nullptr, false);
    std::vector<std::string> warnings;
    const auto warn = [&](double count, const std::string& one, const std::string& more) {
        if (count > 0) {
            warnings.push_back(Decimals(count, 0) + (count == 1 ? one : more));
        }
    };
    if (kit.is_discarded()) {
        return warnings;
    }
    warn(NumberIn(kit, "/figures/belowLimits"), " area is too small or too narrow for a brush",
         " areas are too small or too narrow for a brush");
    warn(NumberIn(kit, "/plan/below2mm"), " symbol is below 2 mm", " symbols are below 2 mm");
    if (const double stretch = NumberIn(kit, "/stretchPercent"); stretch > kSeenAsStretched) {
        warnings.push_back("stretched by " + Decimals(stretch, 0) + " %");
    }
    return warnings;
}

std::string ReportPage(const std::vector<ReportedOrder>& orders,
                       const std::vector<PaintTotal>& totals, const BatchPlaces& places) {
    const auto failed = std::ranges::count_if(
        orders, [](const ReportedOrder& order) { return !order.Became->Done; });
    std::string page(kHead);
    page += "<h1>" + std::to_string(orders.size()) + " orders</h1>\n";
    page += Paragraph(std::to_string(static_cast<std::ptrdiff_t>(orders.size()) - failed) +
                      " made, " + std::to_string(failed) + " failed");
    page += LinesAbout(orders, "Failed", "failed",
                       [](const ManifestEntry& entry) { return !entry.Done; });
    page += LinesAbout(orders, "To look at before they are sent", "look",
                       [](const ManifestEntry& entry) {
                           return entry.Done && !WarningsOf(entry.Figures).empty();
                       });
    page += PaintsToBuy(totals, places);
    page += "<ol>\n";
    for (const ReportedOrder& order : orders) {
        page += ItemOf(order, places);
    }
    return page + "</ol>\n</html>\n";
}

}  // namespace vendrel
