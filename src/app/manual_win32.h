// The user's manual in the web browser.
#pragma once

#include "ui/native_window_win32.h"

namespace scorvane {

/// Shows ScorvaneUsersManual.htm of the program's own folder in the operator's web browser, without
/// waiting for it. False when the manual is not there or no browser can be started.
bool openManualInBrowser(NativeWindow owner);

}  // namespace scorvane
