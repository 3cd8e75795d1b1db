// Plain text on the clipboard.
#pragma once

#include <string_view>

#include "app/main_window.h"
#include "ui/native_window_win32.h"

namespace scorvane {

/// Puts the text on the clipboard for `owner`. A clipboard that another program keeps
/// open, or that does not take the text, counts as memory that cannot be locked.
MainWindow::CopyResult putOnClipboard(NativeWindow owner, std::string_view text);

}  // namespace scorvane
