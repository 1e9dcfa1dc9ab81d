#include "output/painting_writer.h"

#include "convert/bitmap_writer.h"

namespace vendrel {

void WritePainting(Ui& screen, const Surface& painting, const Target& target) {
    screen.SetCaption("Saving File, Please Wait....");
    WriteBitmap(target, painting);
}

}  // namespace vendrel
