// Characters that mean something else elsewhere: line ends and control characters.
#pragma once

#include <string>
#include <string_view>

namespace scorvane {

/// The text with every LF written as CR LF; everything else stays, other CRs too.
[[nodiscard]] std::string withWindowsLineEnds(std::string_view text);

/// The text with every control character (TAB, line end, any byte below the blank) replaced by a
/// blank. A contest file separates its fields by TAB and its records by line ends; a name pasted
/// with one of them inside must not cut the record in two.
[[nodiscard]] std::string withoutControlCharacters(std::string_view text);

/// The text as it may be shown where characters can be commands: with a blank for every control
/// character but TAB, LF and CR LF, DEL and what UTF-8 makes of the bytes 128 to 159 included.
/// Alone those are letters and signs of the code page.
[[nodiscard]] std::string withoutCommands(std::string_view text);

}  // namespace scorvane
