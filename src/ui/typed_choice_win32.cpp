#include "ui/typed_choice_win32.h"

#include <windows.h>
// The common controls need windows.h before them.
#include <commctrl.h>

#include <optional>
#include <string>
#include <vector>

#include "ui/control_kind_win32.h"
#include "ui/line_search.h"

namespace scorvane {

namespace {

std::vector<std::string> linesOf(HWND list) {
  std::vector<std::string> lines(static_cast<std::size_t>(SendMessageA(list, LB_GETCOUNT, 0, 0)));
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const LRESULT length = SendMessageA(list, LB_GETTEXTLEN, i, 0);
    if (length <= 0) continue;
    lines[i].resize(static_cast<std::size_t>(length));
    SendMessageA(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(lines[i].data()));
  }
  return lines;
}

bool chooseLine(HWND list, char typed) {
  const auto current = static_cast<int>(SendMessageA(list, LB_GETCURSEL, 0, 0));
  const auto line = lineBeginningWith(linesOf(list), typed,
                                      current == LB_ERR ? std::nullopt : std::optional(current));
  if (!line) return false;
  // The line that is chosen already is chosen again, as a click does.
  SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(*line), 0);
  const auto id = static_cast<WORD>(GetDlgCtrlID(list));
  SendMessageA(GetParent(list), WM_COMMAND, MAKEWPARAM(id, LBN_SELCHANGE),
               reinterpret_cast<LPARAM>(list));
  return true;
}

LRESULT CALLBACK listProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam,
                               UINT_PTR /*id*/, DWORD_PTR /*data*/) {
  if (message == WM_CHAR && wParam > ' ' && chooseLine(list, static_cast<char>(wParam))) return 0;
  return DefSubclassProc(list, message, wParam, lParam);
}

BOOL CALLBACK watch(HWND control, LPARAM /*unused*/) {
  constexpr UINT_PTR kSubclass = 2;
  if (controlKind(control) == ControlKind::list && !isMultipleSelection(control)) {
    SetWindowSubclass(control, listProcedure, kSubclass, 0);
  }
  return TRUE;
}

}  // namespace

void enableTypeAhead(NativeWindow dialog) {
  EnumChildWindows(dialog, watch, 0);
}

}  // namespace scorvane
