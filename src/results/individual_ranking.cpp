#include "results/individual_ranking.h"

#include <algorithm>
#include <functional>

namespace scorvane {

namespace {

// Which sums the scores of a class go into.
struct ClassFlags {
  bool inSet = false;
  bool hasReasons = false;
  bool placingBreaksTies = false;
};

std::vector<ClassFlags> flagsOf(const JudgingClasses& classes, ScoreKind kind,
                                const ClassSet& classSet) {
  std::vector<ClassFlags> flags(static_cast<std::size_t>(classes.count()));
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    const bool reasons = classes.hasReasons(k);
    const bool breaksTies = kind == ScoreKind::questions ? classes.hasQuestions(k) : reasons;
    flags[static_cast<std::size_t>(k)] = {false, reasons, breaksTies};
  }
  for (const std::int32_t k : classSet) {
    if (k >= 0 && k < classes.count()) flags[static_cast<std::size_t>(k)].inSet = true;
  }
  return flags;
}

RankValues sumOf(const ClassScores& records, ScoreKind kind, const std::vector<ClassFlags>& flags) {
  const bool overall = kind == ScoreKind::overall;
  std::uint32_t score = 0, totalReasons = 0, classPlacings = 0, totalOverall = 0, setReasons = 0;
  for (const auto& [classIndex, record] : records) {
    // Classes are counted from 0: a record below, as damaged files can have, belongs to none.
    if (classIndex < 0) continue;
    const auto placing = static_cast<std::uint32_t>(record.placingScore);
    const auto reasons = static_cast<std::uint32_t>(record.reasonsScore);
    const auto questions = static_cast<std::uint32_t>(record.questionsScore);
    totalOverall += placing + reasons + questions;
    const auto k = static_cast<std::size_t>(classIndex);
    if (k >= flags.size()) continue;
    if (flags[k].hasReasons) totalReasons += reasons;
    if (flags[k].placingBreaksTies) classPlacings += placing;
    if (!flags[k].inSet) continue;
    if (overall || kind == ScoreKind::placings) score += placing;
    if (overall || kind == ScoreKind::reasons) score += reasons;
    if (overall || kind == ScoreKind::questions) score += questions;
    setReasons += kind == ScoreKind::questions ? questions : reasons;
  }
  return {static_cast<std::int32_t>(score), static_cast<std::int32_t>(totalReasons),
          static_cast<std::int32_t>(classPlacings), static_cast<std::int32_t>(totalOverall),
          static_cast<std::int32_t>(setReasons)};
}

}  // namespace

std::vector<IndividualRankEntry> contestantTotals(const Contest& contest, ScoreKind kind,
                                                  const ClassSet& classSet) {
  const std::vector<ClassFlags> flags = flagsOf(contest.classes, kind, classSet);
  std::vector<IndividualRankEntry> totals;
  totals.reserve(contest.scores.size());
  for (const auto& [number, records] : contest.scores) {
    totals.push_back({number, sumOf(records, kind, flags)});
  }
  return totals;
}

std::vector<IndividualRankEntry> rankIndividuals(std::vector<IndividualRankEntry> totals,
                                                 TieOrder order) {
  sortByRank(totals, order);
  return totals;
}

bool rankTop(const std::vector<IndividualRankEntry>& totals, TieOrder order,
             std::vector<IndividualRankEntry>& top) {
  return withRank(order, [&](const auto& before) {
    std::partial_sort_copy(totals.begin(), totals.end(), top.begin(), top.end(), before);
    return std::adjacent_find(top.begin(), top.end(), std::not_fn(before)) == top.end();
  });
}

}  // namespace scorvane
