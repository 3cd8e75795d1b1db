// Reads and works the controls of dialogs for the desktop driver.
#include "tools/desktop/driver_win32.h"

namespace {

Fields sendMessage(const Fields& f) {
  return {std::to_string(send(toControl(f), static_cast<UINT>(toNumber(f.at(3))),
                              static_cast<WPARAM>(toNumber(f.at(4))),
                              static_cast<LPARAM>(toNumber(f.at(5)))))};
}

// A number that a control keeps for the one who sets it, by messages that can be posted.
struct Keepsake {
  const char* controlClass;
  UINT set;
  UINT get;
};

constexpr Keepsake kKeepsakes[] = {{"Edit", EM_SETLIMITTEXT, EM_GETLIMITTEXT},
                                   {"ListBox", LB_SETHORIZONTALEXTENT, LB_GETHORIZONTALEXTENT}};

// Sent messages overtake posted keys, so the end of the posted ones is marked by a posted number
// that can be read back: once it is there, everything posted before has been worked off.
void awaitPosted(HWND window) {
  for (const Keepsake& keepsake : kKeepsakes) {
    HWND control = FindWindowExA(window, nullptr, keepsake.controlClass, nullptr);
    if (control == nullptr) continue;
    const LRESULT kept = send(control, keepsake.get, 0, 0);
    const LRESULT mark = kept + 1;
    PostMessageA(control, keepsake.set, static_cast<WPARAM>(mark), 0);
    const ULONGLONG deadline = GetTickCount64() + kPatience;
    while (IsWindow(control) != 0 && send(control, keepsake.get, 0, 0) != mark) {
      if (GetTickCount64() > deadline) throw Failure{"posted keys are not worked off"};
      Sleep(1);
    }
    PostMessageA(control, keepsake.set, static_cast<WPARAM>(kept), 0);
    return;
  }
}

// Waits until the window's thread has answered everything sent or posted so far; a window that
// closes on it has.
Fields settle(const Fields& f) {
  HWND window = toWindow(f.at(1));
  try {
    awaitPosted(window);
    send(window, WM_NULL, 0, 0);
  } catch (const Failure&) {
    if (IsWindow(window) != 0) throw;
  }
  return {};
}

Fields text(const Fields& f) {
  return {textOf(toControl(f))};
}

Fields setText(const Fields& f) {
  sendWide(toControl(f), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(wide(f.at(3)).c_str()));
  return {};
}

Fields isEnabled(const Fields& f) {
  return {IsWindowEnabled(toControl(f)) != 0 ? "1" : "0"};
}

Fields isChecked(const Fields& f) {
  return {std::to_string(send(toControl(f), BM_GETCHECK, 0, 0))};
}

// Sent without waiting for the answer, as a message box may come of it: unlike something posted,
// it is answered before all that is sent later, however busy the program is.
Fields clickButton(const Fields& f) {
  SendNotifyMessageA(toControl(f), BM_CLICK, 0, 0);
  return {};
}

bool isCombo(HWND control) {
  return lstrcmpiA(classOf(control).c_str(), "ComboBox") == 0;
}

Fields lines(const Fields& f) {
  HWND control = toControl(f);
  const bool combo = isCombo(control);
  const LRESULT count = send(control, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
  Fields found;
  for (LRESULT i = 0; i < count; ++i) {
    const auto index = static_cast<WPARAM>(i);
    const LRESULT length = send(control, combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, index, 0);
    std::wstring wide(static_cast<std::size_t>(length) + 1, L'\0');
    const LRESULT got = sendWide(control, combo ? CB_GETLBTEXT : LB_GETTEXT, index,
                                 reinterpret_cast<LPARAM>(wide.data()));
    wide.resize(static_cast<std::size_t>(got));
    found.push_back(narrow(wide));
  }
  return found;
}

bool isMultiple(HWND control) {
  return (GetWindowLongA(control, GWL_STYLE) & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
}

Fields selection(const Fields& f) {
  HWND control = toControl(f);
  if (isCombo(control)) return {std::to_string(send(control, CB_GETCURSEL, 0, 0))};
  if (!isMultiple(control)) return {std::to_string(send(control, LB_GETCURSEL, 0, 0))};
  Fields chosen;
  const LRESULT count = send(control, LB_GETCOUNT, 0, 0);
  for (LRESULT i = 0; i < count; ++i) {
    if (send(control, LB_GETSEL, static_cast<WPARAM>(i), 0) > 0)
      chosen.push_back(std::to_string(i));
  }
  return chosen;
}

// Selects a line as the operator would: the notification is sent, too.
Fields choose(const Fields& f) {
  HWND control = toControl(f);
  const auto index = static_cast<WPARAM>(toNumber(f.at(3)));
  const auto id = static_cast<WPARAM>(toNumber(f.at(2)));
  const bool combo = isCombo(control);
  if (combo) {
    send(control, CB_SETCURSEL, index, 0);
  } else if (isMultiple(control)) {
    send(control, LB_SETSEL, TRUE, static_cast<LPARAM>(index));
  } else {
    send(control, LB_SETCURSEL, index, 0);
  }
  const WPARAM notice = combo ? CBN_SELCHANGE : LBN_SELCHANGE;
  SendNotifyMessageA(GetParent(control), WM_COMMAND, (notice << 16) | id,
                     reinterpret_cast<LPARAM>(control));
  return {};
}

HWND focusOf(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  if (GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) == 0) return nullptr;
  return info.hwndFocus;
}

Fields focused(const Fields& f) {
  HWND control = focusOf(toWindow(f.at(1)));
  return {std::to_string(control == nullptr ? 0 : GetDlgCtrlID(control))};
}

Fields defaultButton(const Fields& f) {
  return {std::to_string(LOWORD(send(toWindow(f.at(1)), DM_GETDEFID, 0, 0)))};
}

// Posts one key to the control that has the focus: a character, or a virtual key by number.
Fields key(const Fields& f) {
  HWND control = focusOf(toWindow(f.at(1)));
  if (control == nullptr) throw Failure{"nothing has the focus"};
  const bool isCharacter = f.at(2) == "char";
  const auto code = static_cast<WPARAM>(toNumber(f.at(3)));
  PostMessageA(control, isCharacter ? WM_CHAR : WM_KEYDOWN, code, 1);
  if (!isCharacter) PostMessageA(control, WM_KEYUP, code, static_cast<LPARAM>(0xC0000001U));
  return {};
}

}  // namespace

const Commands& controlCommands() {
  static const Commands commands = {{"send", sendMessage},
                                    {"settle", settle},
                                    {"text", text},
                                    {"set_text", setText},
                                    {"is_enabled", isEnabled},
                                    {"is_checked", isChecked},
                                    {"click", clickButton},
                                    {"lines", lines},
                                    {"selection", selection},
                                    {"choose", choose},
                                    {"focused", focused},
                                    {"default_button", defaultButton},
                                    {"key", key}};
  return commands;
}
