#include "ui/control_kind_win32.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

namespace scorvane {

namespace {

constexpr LineMessages kListMessages = {
    LB_GETCOUNT,    LB_ADDSTRING, LB_INSERTSTRING, LB_DELETESTRING, LB_RESETCONTENT,
    LB_INITSTORAGE, LB_GETCURSEL, LB_SETCURSEL,    LB_GETITEMDATA,  LB_SETITEMDATA};
constexpr LineMessages kComboMessages = {
    CB_GETCOUNT,    CB_ADDSTRING, CB_INSERTSTRING, CB_DELETESTRING, CB_RESETCONTENT,
    CB_INITSTORAGE, CB_GETCURSEL, CB_SETCURSEL,    CB_GETITEMDATA,  CB_SETITEMDATA};

}  // namespace

ControlKind controlKind(NativeWindow control) {
  char name[16] = "";
  GetClassNameA(control, name, sizeof name);
  if (lstrcmpiA(name, "Button") == 0) return ControlKind::button;
  if (lstrcmpiA(name, "Edit") == 0) return ControlKind::edit;
  if (lstrcmpiA(name, "ListBox") == 0) return ControlKind::list;
  if (lstrcmpiA(name, "ComboBox") == 0) return ControlKind::combo;
  return ControlKind::other;
}

bool isPushButton(NativeWindow control) {
  if (control == nullptr || controlKind(control) != ControlKind::button) return false;
  const LONG type = GetWindowLongA(control, GWL_STYLE) & BS_TYPEMASK;
  return type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON;
}

bool isMultipleSelection(NativeWindow control) {
  if (controlKind(control) != ControlKind::list) return false;
  return (GetWindowLongA(control, GWL_STYLE) & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
}

void drawDefaultButtons(NativeWindow dialog) {
  HWND focus = GetFocus();
  const bool onButton = isPushButton(focus) && IsChild(dialog, focus) != FALSE;
  const int defaultId = LOWORD(SendMessageA(dialog, DM_GETDEFID, 0, 0));
  HWND marked = onButton ? focus : GetDlgItem(dialog, defaultId);
  for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    if (!isPushButton(child)) continue;
    const bool drawn = (GetWindowLongA(child, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
    if (drawn == (child == marked)) continue;
    SendMessageA(child, BM_SETSTYLE, drawn ? BS_PUSHBUTTON : BS_DEFPUSHBUTTON, TRUE);
  }
}

bool isMovedByKeys(NativeWindow control) {
  if (control == nullptr || controlKind(control) != ControlKind::list) return false;
  constexpr int kMovingKeys[] = {VK_UP, VK_DOWN, VK_PRIOR, VK_NEXT, VK_HOME, VK_END};
  return std::any_of(std::begin(kMovingKeys), std::end(kMovingKeys),
                     [](int key) { return GetKeyState(key) < 0; });
}

const LineMessages& lineMessagesOf(NativeWindow control) {
  return controlKind(control) == ControlKind::combo ? kComboMessages : kListMessages;
}

std::optional<ControlEvent> controlEvent(NativeWindow control, unsigned notification) {
  switch (controlKind(control)) {
    case ControlKind::button:
      if (notification == BN_CLICKED) return ControlEvent::clicked;
      break;
    case ControlKind::edit:
      if (notification == EN_CHANGE) return ControlEvent::textChanged;
      if (notification == EN_SETFOCUS) return ControlEvent::gotFocus;
      if (notification == EN_KILLFOCUS) return ControlEvent::lostFocus;
      break;
    case ControlKind::list:
      if (notification == LBN_SELCHANGE) return ControlEvent::selectionChanged;
      break;
    case ControlKind::combo:
      if (notification == CBN_SELCHANGE) return ControlEvent::selectionChanged;
      break;
    case ControlKind::other:
      break;
  }
  return std::nullopt;
}

}  // namespace scorvane
