// Names of files are UTF-8 inside the program, texts of contests 8-bit; here is what lies between.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace scorvane {

/// UTF-8 in UTF-16; nothing when it is malformed. A surrogate without its partner, as a file's name
/// may have on Windows, is three bytes like any other unit, so that every name comes back.
[[nodiscard]] std::optional<std::u16string> utf16Of(std::string_view utf8);
[[nodiscard]] std::string utf8Of(std::u16string_view utf16);

/// How many characters a text has; bytes that are no UTF-8 make every byte count.
[[nodiscard]] std::size_t countCharacters(std::string_view utf8);

/// The text cut to so many bytes at most, before a character that has no room.
[[nodiscard]] std::string_view cutBetweenCharacters(std::string_view utf8, std::size_t most);

/// The text in code page 1252, with "?" for every character that it lacks.
[[nodiscard]] std::string windows1252Of(std::string_view utf8);

/// A path as titles and messages show it: in the system's 8-bit text, with "?" for what that lacks.
[[nodiscard]] std::string shownPath(std::string_view path);

}  // namespace scorvane
