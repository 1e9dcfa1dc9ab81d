#include "convert/settings.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "convert/photo_import.h"

namespace vendrel {

void SetStippleSize(Workplace& place, int size) {
    WorkState& state = place.State;
    std::optional<Photo> photo;
    if (!state.PicturePath.empty()) {
        photo = ReadPhoto(state.PicturePath, place.Screen.Screen(), size);
    }
    SizeStipples(state, size);
    if (photo) {
        ShowPhoto(place, std::move(*photo));
    }
}

void ResizePixelMap(PaintedPixels& pixels, const Surface& picture) {
    Grid<MapPixel>& map = pixels.PixelMap;
    if (map.Holds(picture.Width(), picture.Height()) && map.Across() == picture.Width() &&
        map.Down() == picture.Height()) {
        std::ranges::fill(map.All(), MapPixel{});
    } else {
        map = Grid<MapPixel>(picture.Width(), picture.Height());
    }
}

}  // namespace vendrel
