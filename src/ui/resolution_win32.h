// How finely a window's display is divided.
#pragma once

using NativeWindow = struct HWND__*;

/// Dots per inch of the display that shows the window; 96 is 100 per cent.
[[nodiscard]] int resolutionOf(NativeWindow window);
