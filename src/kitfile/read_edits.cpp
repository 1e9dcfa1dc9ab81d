#include "kitfile/read_edits.h"

#include <algorithm>
#include <string>
#include <utility>

#include "kitfile/kit_paints.h"

namespace vendrel {
namespace {

// The runs of one wish, rows and columns ascending, so that none meets another.
class RunReader {
  public:
    RunReader(ObjectReader& edits, EditLayer& layer, const char* name, StippleWish wish)
        : edits_(edits), layer_(layer), name_(name), wish_(wish) {}

    void Read() {
        for (const KitJson& row : edits_.Array(name_)) {
            ObjectReader reader(edits_.Text(), row, edits_.PlaceOf(name_));
            const int y = reader.Whole("row", {lastRow_ + 1, layer_.Down});
            lastRow_ = y;
            int from = 1;
            for (const KitJson& run : reader.Array("runs")) {
                from = AddRun(run, {from, y});
            }
            reader.KeepUnknown(edits_.PlaceOf(name_) + "/" + std::to_string(y));
        }
    }

  private:
    // Answers the first column that the next run may have.
    int AddRun(const KitJson& run, CellPos first) {
        const int from = Part(run, 0, {first.X, layer_.Across});
        const int to = Part(run, 1, {from, layer_.Across});
        const int least = wish_ == StippleWish::Paint ? 1 : 0;
        const int paint = Part(run, 2, {least, layer_.Paints.Count()});
        for (int x = from; x <= to; ++x) {
            layer_.Cells.push_back({{x, first.Y}, wish_, paint});
        }
        return to + 1;
    }

    int Part(const KitJson& run, std::size_t at, WholeRange range) const {
        const bool sound = run.is_array() && run.size() == 3 && run[at].is_number_integer();
        const double value = sound ? run[at].get<double>() : -1;
        if (!sound || value < range.Least || value > range.Most) {
            edits_.Refuse(name_,
                          "must have runs of first column, last column and paint, in order and "
                          "within the " +
                              std::to_string(layer_.Across) + " columns and " +
                              std::to_string(layer_.Paints.Count()) + " paints");
        }
        return static_cast<int>(value);
    }

    ObjectReader& edits_;
    EditLayer& layer_;
    const char* name_;
    StippleWish wish_;
    int lastRow_ = 0;
};

void SortCells(const ObjectReader& edits, std::vector<StippleEdit>& cells) {
    const auto place = [](const StippleEdit& edit) { return std::pair(edit.At.Y, edit.At.X); };
    std::ranges::sort(cells, {}, place);
    if (std::ranges::adjacent_find(cells, {}, place) != cells.end()) {
        edits.Refuse("joined", "must have no stipple that is painted too");
    }
}

}  // namespace

EditLayer ReadEditLayer(ObjectReader edits) {
    EditLayer layer;
    layer.Across = edits.Whole("across", {0, kMostStipplesASide});
    layer.Down = edits.Whole("down", {0, kMostStipplesASide});
    layer.Paints = ReadKitPaints(edits, "paints");
    RunReader(edits, layer, "painted", StippleWish::Paint).Read();
    RunReader(edits, layer, "joined", StippleWish::Neighbors).Read();
    SortCells(edits, layer.Cells);
    const std::string place = edits.PlaceOf("exchanges");
    for (const KitJson& exchange : edits.Array("exchanges")) {
        ObjectReader reader(edits.Text(), exchange, place);
        layer.Exchanges.push_back({ReadKitPaint(edits.Text(), reader.Member("from"), place),
                                   ReadKitPaint(edits.Text(), reader.Member("to"), place)});
        reader.KeepUnknown(PlaceOfPaint(place + "/both", layer.Exchanges.back().From));
    }
    if (edits.Has("order")) {
        layer.Order = ReadKitPaints(edits, "order");
    }
    edits.KeepUnknown();
    return layer;
}

}  // namespace vendrel
