// Drives the windows of a running scorvane.exe for the desktop tests: reads one command a line
// from standard input, answers with one line. Fields are separated by TAB; a TAB, line end or
// backslash inside a field is written \t, \n, \r or \\. An answer is "ok" and its fields, or
// "error" and a sentence.
#include <windows.h>
// The shell needs windows.h before it.
#include <shellapi.h>
#include <shlobj.h>

#include <cstdio>
#include <iostream>
#include <string>

#include "tools/desktop/driver_win32.h"

namespace {

DWORD watchedProcess = 0;
HANDLE watchedHandle = nullptr;

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

const Commands kCommands = {{"start", start},
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
    const Commands& commands = kCommands.contains(fields[0]) ? kCommands : controlCommands();
    const auto found = commands.find(fields[0]);
    try {
      if (found == commands.end()) throw Failure{"unknown command " + fields[0]};
      answer("ok", found->second(fields));
    } catch (const Failure& failure) {
      answer("error", {failure.text});
    } catch (const std::exception& failure) {
      answer("error", {failure.what()});
    }
  }
  return 0;
}
