// Taking over scores that are missing here from another file of the same contest.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/contest.h"
#include "model/contest_differences.h"

namespace scorvane {

struct BroughtScores {
  Contest contest;  ///< ours with what it lacked
  std::vector<ContestantScore> broughtIn;
  std::vector<ContestantScore> differing;  ///< these stay as they are here
  std::vector<ContestantScore> leftOut;    ///< missing here, as the class carries no such scores
  /// Whom and which classes only one side has: "101 Ann Lee", "Steers". Reserved numbers are
  /// nobody.
  Sides<std::vector<std::string>> people;
  Sides<std::vector<std::string>> classes;

  [[nodiscard]] bool isSmooth() const {
    return differing.empty() && leftOut.empty() && people.here.empty() && people.there.empty() &&
           classes.here.empty() && classes.there.empty();
  }
};

/// Takes over every letter, reasons and questions score that is missing here and is there, for the
/// same contestant, by number and name, and the same class, by name, that carries such scores.
[[nodiscard]] BroughtScores bringInScores(const Contest& here, const Contest& there);

}  // namespace scorvane
