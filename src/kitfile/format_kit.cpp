#include <algorithm>
#include <string>

#include "kitfile/json_layout.h"
#include "kitfile/kit_file.h"
#include "kitfile/kit_paints.h"
#include "kitfile/packed_values.h"
#include "kitfile/stipple_middle.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";

std::string ColorText(const PaintColor& paint) {
    std::string text = "#";
    for (const int channel : {paint.Red, paint.Green, paint.Blue}) {
        text += kHexDigits[static_cast<std::size_t>(channel) >> 4U & 15U];
        text += kHexDigits[static_cast<std::size_t>(channel) & 15U];
    }
    return text;
}

class KitWriter {
  public:
    explicit KitWriter(const KitFile& kit) : kit_(kit) {}

    [[nodiscard]] KitJson Whole() const {
        KitJson json = {{"format", kKitFormat},
                        {"program", kit_.Program},
                        {"title", kit_.Title},
                        {"photo", Photo()}};
        if (kit_.Crop) {
            json["crop"] = Crop(*kit_.Crop);
        }
        json["board"] = With("board", {{"width", kit_.Board.Width / kit_.Board.Twips.X},
                                       {"height", kit_.Board.Height / kit_.Board.Twips.Y}});
        json["settings"] = ChosenSettings();
        json["print"] = Print();
        json["source"] = Source();
        json["choice"] = Paints("choice", kit_.Choice);
        if (kit_.Chosen.Buying.Asked) {
            json["owned"] = kit_.Owned;
        }
        json["paints"] = Paints("paints", kit_.Paints);
        json["edits"] = Edits();
        if (HasOwnBase()) {
            json["base"] = With("base", {{"paints", Paints("base.paints", kit_.Layer.BasePaints)},
                                         {"stipples", Indexes(kit_.Layer.Base)}});
        }
        json["grid"] = FinishedGrid();
        return With("", std::move(json));
    }

  private:
    // What another version knows of an object stays in it.
    [[nodiscard]] KitJson With(const std::string& place, KitJson json) const {
        const auto unknown = kit_.Unknown.find(place);
        if (unknown != kit_.Unknown.end()) {
            for (const auto& [name, text] : unknown->second) {
                json.emplace(name, KitJson::parse(text));
            }
        }
        return json;
    }

    [[nodiscard]] KitJson Photo() const {
        return With("photo", {{"file", kit_.Photo.File},
                              {"width", kit_.Photo.Size.Width},
                              {"height", kit_.Photo.Size.Height},
                              {"pixelSum", kit_.Photo.Sum}});
    }

    [[nodiscard]] KitJson Crop(const KitCrop& crop) const {
        return With("crop", {{"of", crop.Of},
                             {"quartersRight", crop.QuartersRight},
                             {"left", crop.Part.Left},
                             {"top", crop.Part.Top},
                             {"width", crop.Part.Width},
                             {"height", crop.Part.Height}});
    }

    [[nodiscard]] KitJson ChosenSettings() const {
        const Settings& chosen = kit_.Chosen;
        KitJson settings = {{"difficulty", WordOf(kLevelWords, chosen.Level)},
                            {"finalPaints", chosen.FinalPaints},
                            {"mostPaints", kit_.FinalColors},
                            {"sample", WordOf(kSampleWords, chosen.Sample)},
                            {"match", WordOf(kMatchWords, chosen.Match)},
                            {"fit", WordOf(kFitWords, chosen.Fit)},
                            {"paintable", chosen.Paintable},
                            {"smallestMm2", chosen.Limits.SmallestMm2},
                            {"narrowestMm", chosen.Limits.NarrowestMm},
                            {"detail", chosen.Detail},
                            {"canvasCm", chosen.CanvasCm}};
        if (chosen.Buying.Asked) {
            settings["ownedFirst"] =
                With("settings.ownedFirst",
                     {{"worth", chosen.Buying.Worth}, {"mostToBuy", chosen.Buying.MostToBuy}});
        }
        return With("settings", std::move(settings));
    }

    [[nodiscard]] KitJson Print() const {
        const PlanSettings& plan = kit_.Print;
        KitJson print = {{"paper", With("print.paper", {{"widthMm", plan.Sheet.Size.Width},
                                                        {"heightMm", plan.Sheet.Size.Height},
                                                        {"inches", plan.Sheet.Inches}})},
                         {"canvasCm", plan.CanvasCm},
                         {"canvas", With("print.canvas", {{"widthMm", plan.Canvas.Width},
                                                          {"heightMm", plan.Canvas.Height}})},
                         {"inchCanvas", plan.InchCanvas},
                         {"bleedMm", plan.BleedMm},
                         {"symbols", WordOf(kSymbolWords, plan.Symbols)},
                         {"lines", WordOf(kLineWords, plan.Lines)},
                         {"gray", plan.Gray},
                         {"coats", plan.Use.Coats},
                         {"cm2PerMl", plan.Use.Cm2PerMl},
                         {"potMl", plan.Use.PotMl},
                         {"groupBySet", plan.GroupBySet},
                         {"maker", plan.Maker},
                         {"logo", plan.Logo.string()}};
        if (plan.Symbols == SymbolStyle::Mine) {
            AddLabels(print);
        }
        if (plan.Shop != ShopFace{}) {
            print["shop"] = Shop(plan.Shop);
        }
        return With("print", std::move(print));
    }

    [[nodiscard]] KitJson Shop(const ShopFace& shop) const {
        KitJson fields = KitJson::array();
        for (const auto& [name, value] : shop.Fields) {
            fields.push_back(name + "=" + value);
        }
        return With("print.shop", {{"order", shop.Order},
                                   {"address", shop.Address},
                                   {"accent", shop.Accent ? HexOfColor(*shop.Accent) : ""},
                                   {"leaflet", shop.Leaflet.string()},
                                   {"fields", std::move(fields)}});
    }

    // Of every paint, so that the plan comes out the same however the shelf changes.
    void AddLabels(KitJson& print) const {
        KitJson labels = KitJson::array();
        KitJson isNew = KitJson::array();
        for (const OwnLabel& label : LabelsFor(kit_.Print.Labels, kit_.Paints)) {
            labels.push_back(label.Text);
            if (label.IsNew) {
                isNew.push_back(label.Text);
            }
        }
        print["labels"] = std::move(labels);
        print["newLabels"] = std::move(isNew);
    }

    [[nodiscard]] KitJson Source() const {
        const PaintSource& source = kit_.Source;
        return With("source", source.Template.empty() ? KitJson{{"sets", source.Sets}}
                                                      : KitJson{{"template", source.Template}});
    }

    [[nodiscard]] KitJson Paint(const std::string& list, const PaintColor& paint) const {
        return With(PlaceOfPaint(list, paint), {{"color", ColorText(paint)},
                                                {"set", paint.Mfg},
                                                {"name", paint.PaintName},
                                                {"code", paint.PaintCode}});
    }

    [[nodiscard]] KitJson Paints(const std::string& list, const PaintList& paints) const {
        KitJson json = KitJson::array();
        for (const PaintColor& paint : paints) {
            json.push_back(Paint(list, paint));
        }
        return json;
    }

    [[nodiscard]] KitJson Edits() const {
        const EditLayer& edits = kit_.Layer.Edits;
        KitJson exchanges = KitJson::array();
        for (const auto& [from, to] : edits.Exchanges) {
            exchanges.push_back(With(
                PlaceOfPaint("edits.exchanges/both", from),
                {{"from", Paint("edits.exchanges", from)}, {"to", Paint("edits.exchanges", to)}}));
        }
        KitJson json = {{"across", edits.Across},
                        {"down", edits.Down},
                        {"paints", Paints("edits.paints", edits.Paints)},
                        {"painted", Runs("edits.painted", StippleWish::Paint)},
                        {"joined", Runs("edits.joined", StippleWish::Neighbors)},
                        {"exchanges", std::move(exchanges)}};
        if (!edits.Order.Empty()) {
            json["order"] = Paints("edits.order", edits.Order);
        }
        return With("edits", std::move(json));
    }

    // A row of the grid an entry; neighbors of one paint are one run.
    [[nodiscard]] KitJson Runs(const std::string& place, StippleWish wish) const {
        KitJson rows = KitJson::array();
        StippleEdit last;
        for (const StippleEdit& edit : kit_.Layer.Edits.Cells) {
            if (edit.Wish != wish) {
                continue;
            }
            if (rows.empty() || edit.At.Y != last.At.Y) {
                rows.push_back(With(place + "/" + std::to_string(edit.At.Y),
                                    {{"row", edit.At.Y}, {"runs", KitJson::array()}}));
            }
            KitJson& runs = rows.back()["runs"];
            if (!runs.empty() && edit.At.X == last.At.X + 1 && edit.Paint == last.Paint) {
                runs.back()[1] = edit.At.X;
            } else {
                runs.push_back({edit.At.X, edit.At.X, edit.Paint});
            }
            last = edit;
        }
        return rows;
    }

    // Where nothing was edited the base is what was finished.
    [[nodiscard]] bool HasOwnBase() const {
        const KitEdits& layer = kit_.Layer;
        const bool sameShape = layer.Base.Across() == kit_.Stipples.Across() &&
                               layer.Base.Down() == kit_.Stipples.Down();
        return sameShape &&
               !(layer.BasePaints == kit_.Paints &&
                 std::ranges::equal(layer.Base.All(), kit_.Stipples.All(), {},
                                    &StippleCell::ColorIndex, &StippleCell::ColorIndex));
    }

    [[nodiscard]] KitJson FinishedGrid() const {
        const Grid<StippleCell>& grid = kit_.Stipples;
        KitJson json = {{"across", grid.Across()},
                        {"down", grid.Down()},
                        {"paintable", kit_.PaintableKit},
                        {"seenPerStipple", kit_.SeenPerStipple},
                        {"stipples", Indexes(grid)}};
        if (const std::vector<int> places = OddPlaces(); !places.empty()) {
            json["places"] = PackValues(places);
        }
        if (kit_.Protected.Holds(grid.Across() - 1, grid.Down() - 1)) {
            json["protected"] = PackValues(kit_.Protected.All());
        }
        return With("grid", std::move(json));
    }

    [[nodiscard]] static KitJson Indexes(const Grid<StippleCell>& grid) {
        std::vector<int> indexes;
        for (int y = 1; y <= grid.Down(); ++y) {
            for (const StippleCell& cell : grid.Row(y).From(1)) {
                indexes.push_back(cell.ColorIndex);
            }
        }
        return PackValues(indexes);
    }

    // Nothing where all stipples stand where this program places them.
    [[nodiscard]] std::vector<int> OddPlaces() const {
        const int size = TraitsOf(kit_.Chosen.Level).StippleSize;
        std::vector<int> places;
        bool odd = false;
        for (int y = 1; y <= kit_.Stipples.Down(); ++y) {
            for (int x = 1; x <= kit_.Stipples.Across(); ++x) {
                const StippleCell& cell = kit_.Stipples(x, y);
                odd = odd || cell.X != MiddleOf(x, size) || cell.Y != MiddleOf(y, size);
                places.insert(places.end(), {cell.X, cell.Y});
            }
        }
        return odd ? places : std::vector<int>();
    }

    const KitFile& kit_;
};

}  // namespace

std::string FormatKitFile(const KitFile& kit) {
    return LayOutJson(KitWriter(kit).Whole());
}

void WriteKitFile(const std::filesystem::path& file, const KitFile& kit) {
    WriteWholeFile(file, FormatKitFile(kit), Lasting::Synced);
}

}  // namespace vendrel
