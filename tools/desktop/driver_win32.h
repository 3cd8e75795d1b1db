// What the commands of the desktop driver share: fields, failures, and windows of other programs.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

using Fields = std::vector<std::string>;
using Commands = std::map<std::string, std::function<Fields(const Fields&)>>;

struct Failure {
  std::string text;
};

constexpr UINT kPatience = 20000;  // milliseconds a window may take to answer

std::string escaped(const std::string& text);
Fields fieldsOf(const std::string& line);
long long toNumber(const std::string& text);

HWND toWindow(const std::string& text);
/// A control by id; id 0 is the window itself.
HWND toControl(const Fields& f);
LRESULT send(HWND window, UINT message, WPARAM w, LPARAM l);
/// Wine hands a list's lines to another process as wide characters, even when asked for 8-bit ones.
LRESULT sendWide(HWND window, UINT message, WPARAM w, LPARAM l);

std::string narrow(const std::wstring& wide);
/// What is sent to the driver is UTF-8.
std::wstring wide(const std::string& text);
std::string textOf(HWND window);
std::string classOf(HWND window);

/// The commands for the controls of a window.
const Commands& controlCommands();
