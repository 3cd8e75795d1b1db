// A fixed-pitch font for text that is laid out in columns.
#pragma once

#include <memory>

#include "ui/native_window_win32.h"

namespace scorvane {

/// Releases a graphics object of the system.
struct GraphicsObjectDeleter {
  void operator()(void* object) const;
};
using GraphicsObject = std::unique_ptr<void, GraphicsObjectDeleter>;

/// A font of `height` pixels from the top of a capital to the bottom of a descender, every
/// character equally wide.
[[nodiscard]] GraphicsObject makeFixedFont(int height);

/// Blanks align the columns of list lines, so the lists of a dialog get such a font, returned.
[[nodiscard]] GraphicsObject useColumnFont(NativeWindow dialog);

/// How wide such a font's characters are, in pixels.
[[nodiscard]] int characterWidth(const GraphicsObject& fixedFont);

}  // namespace scorvane
