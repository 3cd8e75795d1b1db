#include "tools/desktop/driver_win32.h"

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
