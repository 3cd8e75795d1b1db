// Drives the windows of a running scorvane.exe for the desktop tests: reads one command a line
// from standard input, answers with one line. Fields are separated by TAB; a TAB, line end or
// backslash inside a field is written \t, \n, \r or \\. An answer is "ok" and its fields, or
// "error" and a sentence.
#include <windows.h>
// The shell needs windows.h before it.
#include <shellapi.h>
#include <shlobj.h>

#include <cstdio>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <vector>

namespace {

using Fields = std::vector<std::string>;

struct Failure {
  std::string text;
};

constexpr UINT kPatience = 20000;  // milliseconds a window may take to answer

DWORD watchedProcess = 0;
HANDLE watchedHandle = nullptr;

std::string escaped(const std::string& text) {
  std::string out;
  for (const char c : text) {
    switch (c) {
      case '\t':
        out += "\\t";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\\':
        out += "\\\\";
        break;
      default:
        out += c;
    }
  }
  return out;
}

Fields fieldsOf(const std::string& line) {
  Fields fields(1);
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '\t') {
      fields.emplace_back();
    } else if (line[i] == '\\' && i + 1 < line.size()) {
      const char c = line[++i];
      fields.back() += c == 't' ? '\t' : c == 'n' ? '\n' : c == 'r' ? '\r' : c;
    } else if (line[i] != '\r') {
      fields.back() += line[i];
    }
  }
  return fields;
}

long long toNumber(const std::string& text) {
  return std::stoll(text);
}

HWND toWindow(const std::string& text) {
  HWND window = reinterpret_cast<HWND>(static_cast<ULONG_PTR>(toNumber(text)));
  if (IsWindow(window) == 0) throw Failure{"no window " + text};
  return window;
}

// A control by id; id 0 is the window itself.
HWND toControl(const Fields& f) {
  HWND window = toWindow(f.at(1));
  const int id = static_cast<int>(toNumber(f.at(2)));
  if (id == 0) return window;
  HWND control = GetDlgItem(window, id);
  if (control == nullptr) throw Failure{"no control " + f.at(2)};
  return control;
}

LRESULT send(HWND window, UINT message, WPARAM w, LPARAM l) {
  DWORD_PTR result = 0;
  if (SendMessageTimeoutA(window, message, w, l, SMTO_ABORTIFHUNG, kPatience, &result) == 0) {
    throw Failure{"the window does not answer"};
  }
  return static_cast<LRESULT>(result);
}

// Wine hands a list's lines to another process as wide characters, even when asked for 8-bit ones.
LRESULT sendWide(HWND window, UINT message, WPARAM w, LPARAM l) {
  DWORD_PTR result = 0;
  if (SendMessageTimeoutW(window, message, w, l, SMTO_ABORTIFHUNG, kPatience, &result) == 0) {
    throw Failure{"the window does not answer"};
  }
  return static_cast<LRESULT>(result);
}

std::string narrow(const std::wstring& wide) {
  const int length = static_cast<int>(wide.size());
  std::string text(wide.size(), '\0');
  const int got =
      WideCharToMultiByte(CP_ACP, 0, wide.data(), length, text.data(), length, nullptr, nullptr);
  text.resize(static_cast<std::size_t>(got));
  return text;
}

// What is sent to the driver is UTF-8.
std::wstring wide(const std::string& text) {
  const int length = static_cast<int>(text.size());
  std::wstring result(text.size(), L'\0');
  const int got = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, result.data(), length);
  result.resize(static_cast<std::size_t>(got));
  return result;
}

std::string textOf(HWND window) {
  const LRESULT length = send(window, WM_GETTEXTLENGTH, 0, 0);
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  const LRESULT got = send(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(got));
  return text;
}

std::string classOf(HWND window) {
  char name[256] = {};
  GetClassNameA(window, name, sizeof name);
  return name;
}

std::string handleText(HWND window) {
  return std::to_string(static_cast<long long>(reinterpret_cast<ULONG_PTR>(window)));
}

Fields watch(HANDLE process) {
  if (watchedHandle != nullptr) CloseHandle(watchedHandle);
  watchedHandle = process;
  watchedProcess = GetProcessId(process);
  return {std::to_string(watchedProcess)};
}

Fields start(const Fields& f) {
  std::wstring commandLine = wide(f.at(1));
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                     &startup, &process) == 0) {
    throw Failure{"cannot start, error " + std::to_string(GetLastError())};
  }
  CloseHandle(process.hThread);
  return watch(process.hProcess);
}

// Opens a document by its type.
Fields open(const Fields& f) {
  const std::wstring path = wide(f.at(1));
  SHELLEXECUTEINFOW request{};
  request.cbSize = sizeof request;
  request.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI;
  request.lpFile = path.c_str();
  request.nShow = SW_SHOWNORMAL;
  if (ShellExecuteExW(&request) == FALSE || request.hProcess == nullptr) {
    throw Failure{"cannot open, error " + std::to_string(GetLastError())};
  }
  return watch(request.hProcess);
}

// Drops a file on a window. The list of files goes into the other program's memory, where the
// desktop puts it, too.
Fields drop(const Fields& f) {
  HWND window = toWindow(f.at(1));
  const std::wstring path = wide(f.at(2)) + std::wstring(2, L'\0');
  const DROPFILES head{sizeof(DROPFILES), {10, 10}, FALSE, TRUE};
  std::string content(reinterpret_cast<const char*>(&head), sizeof head);
  content.append(reinterpret_cast<const char*>(path.data()), path.size() * sizeof(wchar_t));
  void* memory = VirtualAllocEx(watchedHandle, nullptr, content.size(), MEM_COMMIT, PAGE_READWRITE);
  if (WriteProcessMemory(watchedHandle, memory, content.data(), content.size(), nullptr) == 0) {
    throw Failure{"cannot hand over the dropped file"};
  }
  PostMessageA(window, WM_DROPFILES, reinterpret_cast<WPARAM>(memory), 0);
  return {};
}

// Visible top-level windows of the watched process: handle, class, title, enabled.
Fields windows(const Fields& /*f*/) {
  Fields found;
  EnumWindows(
      [](HWND window, LPARAM list) -> BOOL {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        if (process == watchedProcess && IsWindowVisible(window) != 0) {
          auto& out = *reinterpret_cast<Fields*>(list);
          char title[1200] = {};
          GetWindowTextA(window, title, sizeof title);
          out.push_back(handleText(window));
          out.push_back(classOf(window));
          out.push_back(title);
          out.push_back(IsWindowEnabled(window) != 0 ? "1" : "0");
        }
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

// Position and size of a window on the display: left, top, width, height in pixels.
Fields rectangle(const Fields& f) {
  RECT place{};
  GetWindowRect(toWindow(f.at(1)), &place);
  return {std::to_string(place.left), std::to_string(place.top),
          std::to_string(place.right - place.left), std::to_string(place.bottom - place.top)};
}

// The client area of a control on the display, as above.
Fields clientArea(const Fields& f) {
  HWND control = toControl(f);
  POINT corner{};
  RECT client{};
  ClientToScreen(control, &corner);
  GetClientRect(control, &client);
  return {std::to_string(corner.x), std::to_string(corner.y), std::to_string(client.right),
          std::to_string(client.bottom)};
}

// Gives a window another size, as the operator does by its border.
Fields resize(const Fields& f) {
  SetWindowPos(toWindow(f.at(1)), nullptr, 0, 0, static_cast<int>(toNumber(f.at(2))),
               static_cast<int>(toNumber(f.at(3))), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  return {};
}

Fields exitCode(const Fields& /*f*/) {
  DWORD code = 0;
  if (WaitForSingleObject(watchedHandle, 0) != WAIT_OBJECT_0) return {"running"};
  GetExitCodeProcess(watchedHandle, &code);
  return {std::to_string(code)};
}

Fields killProcess(const Fields& /*f*/) {
  TerminateProcess(watchedHandle, 99);
  WaitForSingleObject(watchedHandle, kPatience);
  return {};
}

Fields command(const Fields& f) {
  PostMessageA(toWindow(f.at(1)), WM_COMMAND, static_cast<WPARAM>(toNumber(f.at(2))), 0);
  return {};
}

Fields post(const Fields& f) {
  PostMessageA(toWindow(f.at(1)), static_cast<UINT>(toNumber(f.at(2))),
               static_cast<WPARAM>(toNumber(f.at(3))), static_cast<LPARAM>(toNumber(f.at(4))));
  return {};
}

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

// Puts a text on the clipboard: UTF-16, a field for each unit.
void fillClipboard(const Fields& f) {
  EmptyClipboard();
  HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, (f.size() - 1) * sizeof(wchar_t));
  auto* units = static_cast<wchar_t*>(GlobalLock(block));
  for (std::size_t i = 2; i < f.size(); ++i) {
    units[i - 2] = static_cast<wchar_t>(std::stoul(f[i]));
  }
  units[f.size() - 2] = L'\0';
  GlobalUnlock(block);
  if (SetClipboardData(CF_UNICODETEXT, block) == nullptr)
    throw Failure{"the clipboard takes nothing"};
}

Fields clipboard(const Fields& f) {
  // Without a window of its own a program can put nothing on the clipboard. It goes at once, as the
  // next program that empties the clipboard would wait for its answer.
  HWND owner = CreateWindowA("STATIC", "", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
  if (OpenClipboard(owner) == 0) {
    DestroyWindow(owner);
    throw Failure{"the clipboard is in use"};
  }
  std::string content;
  if (f.size() > 1 && f.at(1) == "clear") {
    EmptyClipboard();
  } else if (f.size() > 1 && f.at(1) == "set") {
    fillClipboard(f);
  } else if (HANDLE data = GetClipboardData(CF_TEXT)) {
    if (const char* bytes = static_cast<const char*>(GlobalLock(data))) content = bytes;
    GlobalUnlock(data);
  }
  CloseClipboard();
  DestroyWindow(owner);
  return {content};
}

// Keeps other programs from writing to a file until another one is named, or "".
Fields hold(const Fields& f) {
  static HANDLE file = INVALID_HANDLE_VALUE;
  if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
  file = INVALID_HANDLE_VALUE;
  if (f.at(1).empty()) return {};
  file = CreateFileW(wide(f[1]).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0,
                     nullptr);
  if (file == INVALID_HANDLE_VALUE) throw Failure{"cannot hold " + f[1]};
  return {};
}

const std::map<std::string, std::function<Fields(const Fields&)>> kCommands = {
    {"start", start},
    {"open", open},
    {"drop", drop},
    {"hold", hold},
    {"windows", windows},
    {"rectangle", rectangle},
    {"client_area", clientArea},
    {"resize", resize},
    {"exit_code", exitCode},
    {"kill", killProcess},
    {"command", command},
    {"post", post},
    {"send", sendMessage},
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
    {"key", key},
    {"clipboard", clipboard}};

void answer(const char* kind, const Fields& fields) {
  std::string line = kind;
  for (const std::string& field : fields) line += '\t' + escaped(field);
  std::printf("%s\n", line.c_str());
  std::fflush(stdout);
}

}  // namespace

int main() {
  std::string line;
  while (std::getline(std::cin, line)) {
    const Fields fields = fieldsOf(line);
    const auto found = kCommands.find(fields[0]);
    try {
      if (found == kCommands.end()) throw Failure{"unknown command " + fields[0]};
      answer("ok", found->second(fields));
    } catch (const Failure& failure) {
      answer("error", {failure.text});
    } catch (const std::exception& failure) {
      answer("error", {failure.what()});
    }
  }
  return 0;
}
