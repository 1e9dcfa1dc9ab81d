#include "kitfile/kit_paints.h"

#include <charconv>
#include <string_view>

#include "shell/paint_id.h"
#include "support/counter.h"

namespace vendrel {
namespace {

constexpr std::size_t kColorLength = 7;  // "#F0C8AA"

int ChannelAt(std::string_view color, std::size_t at) {
    int value = -1;
    const char* const end = color.data() + at + 2;
    return std::from_chars(color.data() + at, end, value, 16).ptr == end ? value : -1;
}

void ReadColor(ObjectReader& reader, PaintColor& paint) {
    const std::string color = reader.Words("color");
    if (color.size() == kColorLength && color[0] == '#') {
        paint.Red = ChannelAt(color, 1);
        paint.Green = ChannelAt(color, 3);
        paint.Blue = ChannelAt(color, 5);
        if (paint.Red >= 0 && paint.Green >= 0 && paint.Blue >= 0) {
            return;
        }
    }
    reader.Refuse("color", "must be a color such as \"#F0C8AA\"");
}

}  // namespace

std::string PlaceOfPaint(const std::string& list, const PaintColor& paint) {
    const PaintId id = IdOf(paint);
    return list + "/" + id.Set + "|" + id.Name + "|" + id.Code;
}

PaintColor ReadKitPaint(KitText& text, const KitJson& json, const std::string& list) {
    ObjectReader reader(text, json, "a paint of " + list);
    PaintColor paint;
    paint.Mfg = reader.Words("set");
    paint.PaintName = reader.Words("name");
    paint.PaintCode = reader.Words("code");
    ReadColor(reader, paint);
    reader.KeepUnknown(PlaceOfPaint(list, paint));
    return paint;
}

PaintList ReadKitPaints(ObjectReader& object, const char* name) {
    PaintList paints;
    for (const KitJson& paint : object.Array(name)) {
        if (paints.Count() >= kMaxCounter) {
            object.Refuse(name, "must have at most 32767 paints");
        }
        paints.Add(ReadKitPaint(object.Text(), paint, object.PlaceOf(name)));
    }
    return paints;
}

}  // namespace vendrel
