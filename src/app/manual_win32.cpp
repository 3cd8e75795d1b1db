#include "app/manual_win32.h"

#include <windows.h>
// The shell needs windows.h before it.
#include <shellapi.h>
#include <shlwapi.h>

#include <array>
#include <string>

namespace scorvane {

// The program's own folder may have any name, hence wide characters here.
namespace {

constexpr std::size_t kLongestPath = 32768;

std::wstring manualPath() {
  std::wstring path(kLongestPath, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path.substr(0, path.rfind(L'\\') + 1) + L"ScorvaneUsersManual.htm";
}

// The program that shows web pages; "" when the system names none.
std::wstring browserPath() {
  std::array<wchar_t, kLongestPath> path{};
  auto size = static_cast<DWORD>(path.size());
  const HRESULT result =
      AssocQueryStringW(ASSOCF_NONE, ASSOCSTR_EXECUTABLE, L"http", L"open", path.data(), &size);
  return result == S_OK ? path.data() : L"";
}

bool start(NativeWindow owner, const std::wstring& file, const std::wstring& parameters) {
  SHELLEXECUTEINFOW request{};
  request.cbSize = sizeof request;
  request.fMask = SEE_MASK_FLAG_NO_UI;  // the program itself reports a failure
  request.hwnd = owner;
  request.lpVerb = L"open";
  request.lpFile = file.c_str();
  request.lpParameters = parameters.empty() ? nullptr : parameters.c_str();
  request.nShow = SW_SHOWNORMAL;
  return ShellExecuteExW(&request) != FALSE;
}

}  // namespace

bool openManualInBrowser(NativeWindow owner) {
  const std::wstring manual = manualPath();
  if (GetFileAttributesW(manual.c_str()) == INVALID_FILE_ATTRIBUTES) return false;
  // Files ending in .htm may belong to an editor; the browser is asked first.
  const std::wstring browser = browserPath();
  if (!browser.empty() && start(owner, browser, L'"' + manual + L'"')) return true;
  return start(owner, manual, L"");
}

}  // namespace scorvane
