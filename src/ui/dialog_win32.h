// Message boxes, file dialogs and modal dialogs of Windows, over any owner window.
#pragma once

#include <optional>
#include <string>

#include "ui/dialog.h"
#include "ui/native_window_win32.h"
#include "ui/window.h"

namespace scorvane {

// What Window promises, for the window `owner`, which is disabled meanwhile.
Answer askOver(NativeWindow owner, const Message& message);
std::optional<std::string> chooseFileOver(NativeWindow owner, const FileQuestion& question);
int runDialogOver(NativeWindow owner, int resourceId, DialogBehaviour& behaviour);

}  // namespace scorvane
