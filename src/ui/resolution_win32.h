// How finely a window's display is divided.
#pragma once

#include "ui/native_window_win32.h"

namespace scorvane {

/// Dots per inch of the display that shows the window; 96 is 100 per cent.
[[nodiscard]] int resolutionOf(NativeWindow window);

}  // namespace scorvane
