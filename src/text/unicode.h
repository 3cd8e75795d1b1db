// Names of files are UTF-8 inside the program, texts of contests 8-bit; here is what lies between.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace scorvane {

/// UTF-8 in UTF-16; nothing when it is malformed. A surrogate without its partner, as a file's name
/// may have on Windows, is three bytes like any other unit, so that every name comes back.
[[nodiscard]] std::optional<std::u16string> utf16Of(std::string_view utf8);
[[nodiscard]] std::string utf8Of(std::u16string_view utf16);

/// Appends a character as UTF-8.
void appendCharacter(std::string& out, char32_t c);

/// Takes the character at `i` out of UTF-8, also half of a pair; nothing, and `i` stays, for bytes
/// that are none.
[[nodiscard]] std::optional<char32_t> takeCharacter(std::string_view utf8, std::size_t& i);

inline constexpr char32_t kSurrogates = 0xD800;
inline constexpr char32_t kLowSurrogates = 0xDC00;
inline constexpr char32_t kAfterSurrogates = 0xE000;
inline constexpr char32_t kFirstPair = 0x10000;

[[nodiscard]] constexpr bool isPair(char32_t high, char32_t low) {
  return high >= kSurrogates && high < kLowSurrogates && low >= kLowSurrogates &&
         low < kAfterSurrogates;
}
[[nodiscard]] constexpr char32_t characterOfPair(char32_t high, char32_t low) {
  return kFirstPair + ((high - kSurrogates) << 10) + (low - kLowSurrogates);
}

[[nodiscard]] constexpr char byteOf(char32_t value) {
  return static_cast<char>(static_cast<unsigned char>(value));
}

/// The characters of bytes 0x80 to 0x9F in code page 1252; 0 where it has none. All above are as in
/// Unicode.
inline constexpr std::array<char16_t, 32> kWindows1252Own = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

/// How many characters a text has; bytes that are no UTF-8 make every byte count.
[[nodiscard]] std::size_t countCharacters(std::string_view utf8);

/// The text cut to so many bytes at most, before a character that has no room.
[[nodiscard]] std::string_view cutBetweenCharacters(std::string_view utf8, std::size_t most);

/// The text in code page 1252, with "?" for every character that it lacks.
[[nodiscard]] std::string windows1252Of(std::string_view utf8);

/// A path as titles and messages show it: in the system's 8-bit text, with "?" for what that lacks.
[[nodiscard]] std::string shownPath(std::string_view path);

}  // namespace scorvane
