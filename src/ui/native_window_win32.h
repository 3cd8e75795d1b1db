// A window handle of the system, named without its header.
#pragma once

#include "ui/native_window_win32.h"

struct HWND__;

namespace scorvane {

using NativeWindow = ::HWND__*;

}  // namespace scorvane
