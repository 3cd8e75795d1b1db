// Message boxes, file dialogs and modal dialogs of Windows, over any owner window.
#pragma once

#include <optional>
#include <string>

#include "ui/dialog.h"
#include "ui/window.h"

/// A window handle of the system, named without its header.
using NativeWindow = struct HWND__*;

// What Window promises, for the window `owner`, which is disabled meanwhile.
Answer askOver(NativeWindow owner, const Message& message);
std::optional<std::string> chooseFileOver(NativeWindow owner, const FileQuestion& question);
int runDialogOver(NativeWindow owner, int resourceId, DialogBehaviour& behaviour);
