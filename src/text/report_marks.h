// What the builders of reports and those who show and print them agree on: marks inside a report's
// text, and how wide and long one may grow.
#pragma once

#include <cstddef>
#include <string>

namespace scorvane {

/// Shown when there is no report; the view draws the start-up picture beside it.
inline constexpr const char* kWelcomeText = "Welcome to Scorvane!\n";

/// Separates the pages of reports that are printed one sheet per page.
inline constexpr const char* kPageBreakLine = "               ------- Page Break -------";

/// Lines that switch the font while printing.
inline constexpr const char* kSmallFontLine = "--- Small Font ---";
inline constexpr const char* kLargeFontLine = "--- Large Font ---";

/// As many characters as a line of a newer report has at most, for paper and any display.
inline constexpr std::size_t kWidestLine = 80;

/// Thirty classes and a hundred thousand contestants stay below this.
inline constexpr std::size_t kLongestReport = 96U << 20U;
/// For reports that are handed out on paper: ten thousand contestants judging thirty classes stay
/// below this.
inline constexpr std::size_t kLongestHandOut = 56U << 20U;

/// Whether a report has grown beyond all use (a damaged contest file can ask for a grid larger
/// than the memory). Then a last line says that it ends here, and the builder must stop.
[[nodiscard]] bool closeIfTooLong(std::string& report, std::size_t longest = kLongestReport);

}  // namespace scorvane
