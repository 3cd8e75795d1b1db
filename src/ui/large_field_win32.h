// Edit fields of several lines, which hold whole sheets, and the texts of fields in Unicode.
#pragma once

#include <string>
#include <string_view>

#include "ui/native_window_win32.h"

namespace scorvane {

[[nodiscard]] bool isLargeField(NativeWindow control);

/// Lets the large fields of a dialog take large texts, and Ctrl+A mark them.
void prepareLargeFields(NativeWindow dialog);

/// A field's text in UTF-8.
[[nodiscard]] std::string unicodeTextOf(NativeWindow field);
void setUnicodeTextOf(NativeWindow field, std::string_view utf8);

}  // namespace scorvane
