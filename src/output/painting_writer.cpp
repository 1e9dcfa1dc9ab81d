#include "output/painting_writer.h"

#include "convert/bitmap_writer.h"

namespace vendrel {

void WritePainting(const Workplace& place, const Target& target) {
    place.Screen.SetCaption("Saving File, Please Wait....");
    WriteBitmap(target, place.Frames.WorkFrame.Picture);
}

}  // namespace vendrel
