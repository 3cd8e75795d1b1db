// The user's manual in the web browser.
#pragma once

using NativeWindow = struct HWND__*;

/// Shows ScorvaneUsersManual.htm of the program's own folder in the operator's web browser, without
/// waiting for it. False when the manual is not there or no browser can be started.
bool openManualInBrowser(NativeWindow owner);
