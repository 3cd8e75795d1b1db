#include "results/tie_breakers.h"

namespace scorvane {

namespace {

// How many of the ordering's values are equal, counted from the first up to the first difference.
std::size_t equalFields(std::span<const RankField> fields, const RankValues& a,
                        const RankValues& b) {
  std::size_t equal = 0;
  while (equal < fields.size() && a.*fields[equal].field == b.*fields[equal].field) ++equal;
  return equal;
}

}  // namespace

TieOrder tieOrderFor(const Contest& contest, ScoreKind kind, const ClassSet& classSet) {
  // Questions are ranked as reasons are, on purpose, though the printed rules speak of reasons
  // only.
  if (kind == ScoreKind::reasons || kind == ScoreKind::questions) return TieOrder::reasons;
  const auto classes = static_cast<std::size_t>(contest.classes.count());
  return classSet.size() < classes ? TieOrder::category : TieOrder::overall;
}

TieColumns tieColumns(TieOrder order, const RankValues& row, const RankValues& previous,
                      const RankValues& next) {
  const std::span<const RankField> fields = rankFields(order);
  const std::size_t equal =
      std::max(equalFields(fields, row, previous), equalFields(fields, row, next));
  TieColumns columns;
  for (const RankField& tieBreaker : fields.subspan(1, std::min(equal, fields.size() - 1))) {
    columns.values.at(static_cast<std::size_t>(columns.count++)) = row.*tieBreaker.field;
  }
  return columns;
}

}  // namespace scorvane
