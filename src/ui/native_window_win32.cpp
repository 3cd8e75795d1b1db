#include "ui/native_window_win32.h"

#include <windows.h>

namespace scorvane {

int resolutionOf(NativeWindow window) {
  // Windows before 10 has one resolution for all displays and does not know this function.
  using GetDpi = UINT(WINAPI*)(HWND);
  const FARPROC address = GetProcAddress(GetModuleHandleA("user32.dll"), "GetDpiForWindow");
  if (address != nullptr) {
    const UINT dots = reinterpret_cast<GetDpi>(reinterpret_cast<void*>(address))(window);
    if (dots != 0) return static_cast<int>(dots);
  }
  HDC screen = GetDC(nullptr);
  const int dots = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);
  return dots > 0 ? dots : 96;
}

}  // namespace scorvane
