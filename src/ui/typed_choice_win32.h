// Choosing a line of a list by typing its first character.
#pragma once

#include "ui/native_window_win32.h"

namespace scorvane {

/// Lets a typed character choose the next line that begins with it in every list of the dialog in
/// which one line can be selected. Leading blanks do not count, unlike in the system's own search.
void enableTypeAhead(NativeWindow dialog);

}  // namespace scorvane
