// Line ends of text files.
#pragma once

#include <string>
#include <string_view>

namespace scorvane {

/// The text with every LF written as CR LF; everything else stays, other CRs too.
[[nodiscard]] std::string withWindowsLineEnds(std::string_view text);

}  // namespace scorvane
