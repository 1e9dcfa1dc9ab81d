#pragma once

#include "shell/kit_edits.h"

namespace vendrel {

/// A part of a picture, in shares of its sides, after the picture was turned.
struct LayerPart {
    double Left = 0;
    double Top = 0;
    double Width = 1;
    double Height = 1;
    int QuartersRight = 0;  // of a circle, by which the picture was turned first, 0 to 3
};

/// The edits on a grid of another size over a part of the same picture: a stipple is edited when
/// its center lies in one that was.
[[nodiscard]] EditLayer EditsOfPart(const EditLayer& layer, const LayerPart& part, int across,
                                    int down);

/// The same over the whole picture.
[[nodiscard]] inline EditLayer EditsByShare(const EditLayer& layer, int across, int down) {
    return EditsOfPart(layer, {}, across, down);
}

}  // namespace vendrel
