#pragma once

#include "support/surface.h"

namespace vendrel {

/// A drawing surface of the main window. What is drawn is at once its lasting picture.
struct Frame {
    Surface Picture;
    bool Visible = false;
};

/// Size in twips that the main window asks for.
struct WindowSize {
    int Width = 0;
    int Height = 0;
};

/// The four surfaces of the main window.
struct Surfaces {
    Frame WorkFrame;     // the photo, then the stipples, then the painted picture
    Frame BackFrame;     // never shown
    Frame StippleFrame;  // the stipple drawing, never shown
    Frame CaptureFrame;  // the sample picture, later the photo at working size
    WindowSize MainWindow;
};

}  // namespace vendrel
