// From the contest to the bytes of a contest file.
#pragma once

#include <string>
#include <vector>

#include "model/contest.h"
#include "model/contest_findings.h"

namespace scorvane {

/// The bytes of the contest's file. No line is longer than kMaxContestLine with its CR LF: a text
/// too long for its line is cut, and of team members and category names the last ones are left out;
/// numbers are never cut. A text ends at its first TAB, CR or NUL, which would be read as the end
/// of the field or of the line. Without categories the category "none" is written.
[[nodiscard]] std::string writeContest(const Contest& contest);

/// Every text that writeContest() cuts, in the order of the file, as a finding of kind textCut.
[[nodiscard]] std::vector<Finding> cutTexts(const Contest& contest);

}  // namespace scorvane
