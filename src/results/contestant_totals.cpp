#include "results/contestant_totals.h"

#include <numeric>

namespace scorvane {

namespace {

// All bits, or none: the scores of a class are masked rather than asked about one by one.
using Mask = std::uint32_t;

constexpr Mask maskOf(bool set) {
  return set ? ~Mask{0} : Mask{0};
}

// Which scores of one class go into which sum.
struct ClassMasks {
  Mask placingScored = 0;
  Mask reasonsScored = 0;
  Mask questionsScored = 0;
  Mask reasonsFlag = 0;
  Mask placingBreaksTies = 0;
  Mask setReasons = 0;
  Mask setQuestions = 0;
};

std::vector<ClassMasks> makeMasks(const JudgingClasses& classes, ScoreKind kind,
                                  const ClassSet& classSet) {
  std::vector<ClassMasks> masks(static_cast<std::size_t>(classes.count()));
  const bool questions = kind == ScoreKind::questions;
  const bool overall = kind == ScoreKind::overall;
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    ClassMasks& mask = masks[static_cast<std::size_t>(k)];
    mask.reasonsFlag = maskOf(classes.hasReasons(k));
    mask.placingBreaksTies = maskOf(questions ? classes.hasQuestions(k) : classes.hasReasons(k));
  }
  for (const std::int32_t k : classSet) {
    if (k < 0 || k >= classes.count()) continue;
    ClassMasks& mask = masks[static_cast<std::size_t>(k)];
    mask.placingScored = maskOf(overall || kind == ScoreKind::placings);
    mask.reasonsScored = maskOf(overall || kind == ScoreKind::reasons);
    mask.questionsScored = maskOf(overall || questions);
    mask.setReasons = maskOf(!questions);
    mask.setQuestions = maskOf(questions);
  }
  return masks;
}

// One contestant's sums in a straight pass over the records. The classes are visited from 0 for as
// long as the contestant has further records, a gap being filled with a blank record on the way,
// so every record from class 0 on is reached, however few came before it.
RankValues sumOf(const ClassScores& records, const std::vector<ClassMasks>& masks) {
  static constexpr ClassMasks kNoClass;
  std::uint32_t score = 0, totalReasons = 0, classPlacings = 0, totalOverall = 0, setReasons = 0;
  for (const auto& [classIndex, record] : records) {
    if (classIndex < 0) continue;
    const auto k = static_cast<std::size_t>(classIndex);
    const ClassMasks& mask = k < masks.size() ? masks[k] : kNoClass;
    const auto placing = static_cast<std::uint32_t>(record.placingScore);
    const auto reasons = static_cast<std::uint32_t>(record.reasonsScore);
    const auto questions = static_cast<std::uint32_t>(record.questionsScore);
    score += (placing & mask.placingScored) + (reasons & mask.reasonsScored) +
             (questions & mask.questionsScored);
    totalReasons += reasons & mask.reasonsFlag;
    classPlacings += placing & mask.placingBreaksTies;
    totalOverall += placing + reasons + questions;
    setReasons += (reasons & mask.setReasons) + (questions & mask.setQuestions);
  }
  return {static_cast<std::int32_t>(score), static_cast<std::int32_t>(totalReasons),
          static_cast<std::int32_t>(classPlacings), static_cast<std::int32_t>(totalOverall),
          static_cast<std::int32_t>(setReasons)};
}

}  // namespace

ClassSet allClasses(const Contest& contest) {
  ClassSet all(static_cast<std::size_t>(contest.classes.count()));
  std::iota(all.begin(), all.end(), 0);
  return all;
}

std::vector<IndividualRankEntry> contestantTotals(const Contest& contest, ScoreKind kind,
                                                  const ClassSet& classSet) {
  const std::vector<ClassMasks> masks = makeMasks(contest.classes, kind, classSet);
  std::vector<IndividualRankEntry> totals;
  totals.reserve(contest.scores.size());
  for (const auto& [number, records] : contest.scores) {
    totals.push_back({number, sumOf(records, masks)});
  }
  return totals;
}

}  // namespace scorvane
