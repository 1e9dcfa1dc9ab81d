#pragma once

// Pictures of windows and decoded photos are converted by the same code.
#include "export/qt_image.h"
