// UTF-8 inside, UTF-16 for Windows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace scorvane {

/// Nothing for a text that is no UTF-8 or has a NUL in it, where Windows would end it.
[[nodiscard]] std::optional<std::wstring> wideOf(std::string_view utf8);
[[nodiscard]] std::string utf8OfWide(std::wstring_view wide);

}  // namespace scorvane
