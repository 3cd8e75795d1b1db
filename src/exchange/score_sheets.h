// The whole contest as tables for spreadsheets.
#pragma once

#include <vector>

#include "exchange/table.h"
#include "model/contest.h"

namespace scorvane {

/// Contestants, Teams, Classes and Cards. They refer to the contest, which must outlive them and
/// stay as it is.
[[nodiscard]] std::vector<Table> scoreSheets(const Contest& contest);

}  // namespace scorvane
