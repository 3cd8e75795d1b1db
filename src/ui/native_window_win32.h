// A window handle of the system, named without its header, and the display that shows the window.
#pragma once

struct HWND__;

namespace scorvane {

using NativeWindow = ::HWND__*;

/// Dots per inch of the display that shows the window; 96 is 100 per cent.
[[nodiscard]] int resolutionOf(NativeWindow window);

}  // namespace scorvane
