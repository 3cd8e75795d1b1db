// From the contest to the bytes of a contest file.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// The contest as a file holds it. No line is longer than kMaxContestLine with its CR LF: a text
/// too long for its line is cut, the other fields stay whole; of team members, and of the names of
/// categories, those that find no room on the line are left out from the last one on. A text ends
/// at its first TAB, CR or NUL, which would be read as the end of the field or of the line. Without
/// categories the category "none" is written.
[[nodiscard]] std::string writeContest(const Contest& contest);

}  // namespace scorvane
