#include "convert/settings.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "convert/photo_import.h"
#include "support/rounding.h"

namespace vendrel {

void SetStippleSize(Workplace& place, int size) {
    WorkState& state = place.State;
    std::optional<Photo> photo;
    if (!state.PicturePath.empty()) {
        photo = ReadPhoto(state.PicturePath, place.Screen.Screen(), size);
    }
    state.StippleSize = size;
    state.HalfStipple = RoundHalfEven(size / 2.0);
    SetStippleCheck(state);
    if (photo) {
        ShowPhoto(place, std::move(*photo));
    }
}

void SetStippleCheck(WorkState& state) {
    if (state.StippleSize == 4 || state.StippleSize == 6) {
        state.StippleCheck = 3;
    } else if (state.StippleSize == 8) {
        state.StippleCheck = 4;
    }
}

void ResizePixelMap(Workplace& place) {
    Grid<MapPixel>& map = place.State.PixelMap;
    const Surface& picture = place.Frames.WorkFrame.Picture;
    if (map.Holds(picture.Width(), picture.Height()) && map.Across() == picture.Width() &&
        map.Down() == picture.Height()) {
        std::ranges::fill(map.All(), MapPixel{});
    } else {
        map = Grid<MapPixel>(picture.Width(), picture.Height());
    }
}

}  // namespace vendrel
