#pragma once

#include <string>

namespace vendrel {

/// The photo of the kit and the size it is worked on at. Its pixels lie in the surfaces.
struct LoadedPhoto {
    std::string PicturesFolder;
    std::string PictureFile;
    std::string PicturePath;
    std::string PictureName;
    bool PictureLoaded = false;
    int BmpWidth = 0;  // pixels, from the file's header
    int BmpHeight = 0;
    int AspectWidth = 0;
    int AspectHeight = 0;
    bool Landscape = true;
    int PictureWidth = 0;  // twips
    int PictureHeight = 0;
    bool ShapedByGrid = false;  // its size is that of a loaded grid, not its own
};

}  // namespace vendrel
