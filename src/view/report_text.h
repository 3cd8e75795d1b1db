// The one report text of the process: what is shown, printed, copied and saved.
#pragma once

#include <string>

/// Shown when there is no report; the view draws the start-up picture beside it.
inline constexpr const char* kWelcomeText = "Welcome to Scorvane!\n";

/// Stands between pages of reports that are printed one sheet per page.
inline constexpr const char* kPageBreakLine = "               ------- Page Break -------";

/// Lines that switch the font while printing.
inline constexpr const char* kSmallFontLine = "--- Small Font ---";
inline constexpr const char* kLargeFontLine = "--- Large Font ---";

/// Plain 8-bit text, lines ended by LF; tabs may occur. Holds the welcome text at start.
[[nodiscard]] std::string& reportText();

/// Whether a report has grown beyond all use (a damaged contest file can ask for a grid larger
/// than the memory). Then a last line says that it ends here, and the builder must stop.
[[nodiscard]] bool endIfTooLong(std::string& report);
