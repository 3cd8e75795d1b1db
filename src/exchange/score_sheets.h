// The whole contest as tables for spreadsheets.
#pragma once

#include <vector>

#include "exchange/sheet.h"
#include "model/contest.h"

namespace scorvane {

/// Contestants, Teams, Classes and Cards. They refer to the contest, which must outlive them and
/// stay as it is.
[[nodiscard]] std::vector<Sheet> scoreSheets(const Contest& contest);

}  // namespace scorvane
