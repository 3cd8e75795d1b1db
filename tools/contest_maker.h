// Invented contests of any size, the same for the same seed: samples, and food for benchmarks.
#pragma once

#include <cstdint>
#include <string>

#include "model/contest.h"

namespace scorvane {

struct ContestPlan {
  std::uint32_t seed = 1;
  std::string contestName = "Prairie Invitational";
  std::string divisionName = "Senior Division";
  std::string contestDate = "July 18, 2026";
  std::int32_t contestants = 240;  ///< member slots of all teams; rounded up to whole teams
  std::int32_t perTeam = 4;        ///< regular members of a team, at least 1
  std::int32_t alternates = 0;     ///< further member slots of a team, most of them empty
  std::int32_t emptyPercent = 2;   ///< regular slots without a person
  std::int32_t classes = 12;
  std::int32_t reasonsClasses = 4;    ///< classes with reasons, spread over all
  std::int32_t questionsClasses = 2;  ///< classes with questions, among those without reasons
  std::int32_t categories = 4;        ///< at most kMaxPlannedCategories
  std::int32_t groups = 8;
  std::int32_t missingPercent = 0;  ///< scores that are not entered yet
  std::int32_t mistypedClass = 0;   ///< number of a class with a wrong official placing; 0 for none
};

inline constexpr std::int32_t kMaxPlannedCategories = 6;

/// A contest with every card handed in but a few: legal cuts, placings near the official ones
/// by each contestant's skill, placing scores by the cut rule, and a full reasons order.
[[nodiscard]] Contest makeContest(const ContestPlan& plan);

}  // namespace scorvane
