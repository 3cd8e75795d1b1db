// The listings of the contest's classes.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// Every class with its kind and category.
[[nodiscard]] std::string classesReport(const Contest& contest);

/// Every class with its kind, official placing and cuts, to be checked against the officials'
/// cards. A class whose official letter names no order shows the digits 0000.
[[nodiscard]] std::string officialPlacingsReport(const Contest& contest);

}  // namespace scorvane
