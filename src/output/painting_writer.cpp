#include "output/painting_writer.h"

#include "convert/bitmap_writer.h"
#include "output/result_files.h"
#include "shell/busy_pointer.h"

namespace vendrel {

std::filesystem::path PrintWorkform_Click(const Workplace& place) {
    const BusyPointer busy(place.Screen);
    std::filesystem::path file = ResultFile(place, "Painting");
    place.Screen.SetCaption("Saving File, Please Wait....");
    WriteBitmap(file, place.Frames.WorkFrame.Picture);
    return file;
}

}  // namespace vendrel
