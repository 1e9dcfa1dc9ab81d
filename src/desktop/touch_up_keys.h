#pragma once

#include "desktop/touch_up_tool_bar.h"

namespace vendrel {

/// The editor's keys, as shortcuts of its window, besides those of its buttons.
void AddTouchUpKeys(QWidget& window, TouchUpToolBar& tools, const EditorWork& work);

}  // namespace vendrel
