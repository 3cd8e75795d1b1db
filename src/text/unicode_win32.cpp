#include "text/unicode_win32.h"

#include <windows.h>

#include "text/unicode.h"

namespace scorvane {

std::optional<std::wstring> wideOf(std::string_view utf8) {
  const auto utf16 = utf16Of(utf8);
  if (!utf16 || utf16->find(u'\0') != std::u16string::npos) return std::nullopt;
  return std::wstring(utf16->begin(), utf16->end());
}

std::string utf8OfWide(std::wstring_view wide) {
  return utf8Of(std::u16string(wide.begin(), wide.end()));
}

std::string shownPath(std::string_view path) {
  constexpr UINT kWesternCodePage = 1252;
  const auto wide = wideOf(path);
  if (GetACP() == kWesternCodePage || !wide || wide->empty()) return windows1252Of(path);
  const DWORD flags = GetACP() == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
  const auto convert = [&](char* to, int room) {
    return WideCharToMultiByte(CP_ACP, flags, wide->data(), static_cast<int>(wide->size()), to,
                               room, nullptr, nullptr);
  };
  std::string text(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(text.data(), static_cast<int>(text.size()));
  return text;
}

}  // namespace scorvane
