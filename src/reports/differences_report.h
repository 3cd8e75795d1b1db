// What differs between two contests, line by line, to be held against the cards.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// What a comparison is about, and what its two sides are called over their columns.
struct DifferencesHeading {
  std::string title;
  std::string here;
  std::string there;
};

/// Counts the scores that are the same, differ or are on one side only; then every difference, one
/// a line of at most 80 characters: settings, categories, classes, teams, contestants, then the
/// scores of each class in the order in which the cards lie. "-" where one side has nothing.
[[nodiscard]] std::string differencesReport(const Contest& here, const Contest& there,
                                            const DifferencesHeading& heading);

}  // namespace scorvane
