#include "results/tie_breakers.h"

namespace scorvane {

namespace {

std::span<const RankField> rankFields(TieOrder order) {
  switch (order) {
    case TieOrder::reasons:
      return kReasonsFields;
    case TieOrder::category:
      return kCategoryFields;
    case TieOrder::overall:
      break;
  }
  return kOverallFields;
}

// How many of the ordering's values are equal, counted from the first up to the first difference.
std::size_t equalFields(std::span<const RankField> fields, const RankValues& a,
                        const RankValues& b) {
  std::size_t equal = 0;
  while (equal < fields.size() && a.*fields[equal].field == b.*fields[equal].field) ++equal;
  return equal;
}

}  // namespace

TieOrder tieOrderFor(const Contest& contest, ScoreKind kind, const ClassSet& classSet) {
  // Odd but required, docs/required-behaviour.md: questions-ranked-as-reasons
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
  columns.order = order;
  for (const RankField& tieBreaker : fields.subspan(1, std::min(equal, fields.size() - 1))) {
    columns.values.at(static_cast<std::size_t>(columns.count++)) = row.*tieBreaker.field;
  }
  return columns;
}

void noteTie(TieOrder order, const RankValues& row, TieOutcome& ofRow, const RankValues& next,
             TieOutcome& ofNext) {
  const std::span<const RankField> fields = rankFields(order);
  const std::size_t equal = equalFields(fields, row, next);
  if (equal == fields.size()) {
    ofRow.equalsNext = ofNext.equalsPrevious = true;
  } else if (equal > 0) {
    ofRow.rule = static_cast<int>(equal);
    ofRow.own = row.*fields[equal].field;
    ofRow.next = next.*fields[equal].field;
  }
}

std::string tieBreakerReport() {
  return "\n\n\t                  Rules for Breaking Ties\n\n"
         "\n\n\n\tScoring and tie-breakers for overall placings (non-reasons scores):\n\n"
         "\t  1. Highest total score overall wins, if there is a tie then,\n"
         "\t  2. Highest total reasons score breaks the tie, if there is still a tie then,\n"
         "\t  3. Lower placings in reasons class(es) wins (the rationale is that the\n"
         "\t     contestant with the lower placings in the reasons class(es) had to\n"
         "\t     \"talk\" harder to get the same reasons scores and tie above, so they\n"
         "\t     likely did a better job of reasons justification)\n\n\n\n\n"
         "\tScoring and tie-breakers for a reasons score:\n\n"
         "\t  1. Highest total Score in the reasons class(es) wins, if there is a tie then,\n"
         "\t  2. Lower placings in reasons class(es) (see rationale above) wins, if there\n"
         "\t     is still a tie then,\n"
         "\t  3. Highest total overall score wins\n\n\n\n\n"
         "\tScoring and tie-breakers within a species/category:\n\n"
         "\t  1. Highest total score within the species/category wins, if there is a tie then,\n"
         "\t  2. Highest total reasons score within the species/category wins, if there is\n"
         "\t     still a tie then,\n"
         "\t  3. Highest total reasons score overall wins, if there is still a tie then,\n"
         "\t  4. Highest total score overall wins\n";
}

}  // namespace scorvane
