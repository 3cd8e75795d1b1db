// printf-style formatting into strings. Report columns, list lines and the contest file are all
// defined by printf formats, whose widths both pad and cut, in bytes.
#pragma once

#include <string>

#ifdef __MINGW32__
#include <cstdio>  // defines __MINGW_PRINTF_FORMAT
#define SCORVANE_FORMAT(format_index, first) \
  __attribute__((format(__MINGW_PRINTF_FORMAT, format_index, first)))
#else
#define SCORVANE_FORMAT(format_index, first) __attribute__((format(printf, format_index, first)))
#endif

namespace scorvane {

/// Appends the formatted text to `out`. Any length; the format is checked by the compiler.
SCORVANE_FORMAT(2, 3) void appendFormat(std::string& out, const char* format, ...);

/// The formatted text as a new string.
[[nodiscard]] SCORVANE_FORMAT(1, 2) std::string formatText(const char* format, ...);

}  // namespace scorvane
