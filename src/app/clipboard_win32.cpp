#include "app/clipboard_win32.h"

#include <windows.h>

#include <algorithm>

namespace scorvane {

namespace {

// Programs that watch the clipboard hold it for moments after every change.
bool openClipboard(HWND owner) {
  constexpr int kAttempts = 20;
  constexpr DWORD kPause = 25;  // milliseconds
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    if (OpenClipboard(owner) != FALSE) return true;
    Sleep(kPause);
  }
  return false;
}

}  // namespace

MainWindow::CopyResult putOnClipboard(NativeWindow owner, std::string_view text) {
  using Result = MainWindow::CopyResult;
  HGLOBAL block = GlobalAlloc(GHND | GMEM_SHARE, text.size() + 1);
  if (block == nullptr) return Result::noMemory;
  auto* memory = static_cast<char*>(GlobalLock(block));
  if (memory == nullptr) {
    GlobalFree(block);
    return Result::noLock;
  }
  std::copy(text.begin(), text.end(), memory);
  GlobalUnlock(block);
  if (!openClipboard(owner)) {
    GlobalFree(block);
    return Result::noLock;
  }
  EmptyClipboard();
  // The clipboard owns the block once it has taken it.
  const bool taken = SetClipboardData(CF_TEXT, block) != nullptr;
  if (!taken) GlobalFree(block);
  CloseClipboard();
  return taken ? Result::copied : Result::noLock;
}

}  // namespace scorvane
