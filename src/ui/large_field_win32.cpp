#include "ui/large_field_win32.h"

#include <windows.h>
// The common controls need windows.h before them.
#include <commctrl.h>

#include <algorithm>

#include "text/unicode_win32.h"
#include "ui/control_kind_win32.h"

namespace scorvane {

namespace {

LRESULT CALLBACK largeFieldProcedure(HWND field, UINT message, WPARAM wParam, LPARAM lParam,
                                     UINT_PTR /*id*/, DWORD_PTR /*data*/) {
  constexpr WPARAM kControlA = 1;
  if (message == WM_CHAR && wParam == kControlA) return SendMessageW(field, EM_SETSEL, 0, -1);
  return DefSubclassProc(field, message, wParam, lParam);
}

}  // namespace

bool isLargeField(NativeWindow control) {
  return controlKind(control) == ControlKind::edit &&
         (GetWindowLongA(control, GWL_STYLE) & ES_MULTILINE) != 0;
}

void prepareLargeFields(NativeWindow dialog) {
  static constexpr UINT kCellWidth = 72;  // dialog units from TAB to TAB
  constexpr WPARAM kMostCharacters = WPARAM{32} << 20U;
  for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    if (!isLargeField(child)) continue;
    SendMessageW(child, EM_SETLIMITTEXT, kMostCharacters, 0);
    SendMessageW(child, EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&kCellWidth));
    SetWindowSubclass(child, largeFieldProcedure, 1, 0);
  }
}

std::string unicodeTextOf(NativeWindow field) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(field)), L'\0');
  const int length = GetWindowTextW(field, text.data(), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(std::max(length, 0)));
  return utf8OfWide(text);
}

void setUnicodeTextOf(NativeWindow field, std::string_view utf8) {
  if (const auto wide = wideOf(utf8)) SetWindowTextW(field, wide->c_str());
}

}  // namespace scorvane
