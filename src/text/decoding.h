// Text files of other programs, in whatever encoding, as 8-bit text of code page 1252.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace scorvane {

/// 8-bit text, and the positions of the characters in it that stand for others, ascending.
struct DecodedText {
  std::string text;
  std::vector<std::size_t> changed;
};

/// Decodes UTF-8 with or without mark, UTF-16 with mark, or else code page 1252. A character that
/// code page 1252 lacks becomes its base letter, or "?" without one; a letter and its accent, coded
/// apart, become one character. Blanks of all widths become the blank, as does what no encoding
/// defines; marks that are never seen are left out. Neither counts as changed.
[[nodiscard]] DecodedText decodeText(std::string_view bytes);

/// The same bytes in UTF-8 without mark, every character kept.
[[nodiscard]] std::string utf8OfFile(std::string_view bytes);

}  // namespace scorvane
