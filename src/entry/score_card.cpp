#include "entry/score_card.h"

#include "session/open_contest.h"
#include "text/format.h"

namespace scorvane {

bool enterScore(Dialog& dialog, const NumericScoreField& card, const EntryChoice& choice) {
  const std::optional<std::uint32_t> typed = dialog.number(card.field);
  if (typed && *typed > static_cast<std::uint32_t>(kTopNumberScore)) {
    dialog.show(formatText("%s Score must be between 0 and %d.", card.name, kTopNumberScore),
                "Error");
    dialog.setText(card.field, "");
    return false;
  }
  dialog.setText(card.field, "");
  if (!choice.contestant()) {
    dialog.show(card.noContestant, "Warning");
    return false;
  }
  if (typed) {
    ScoreRecord& record = currentContest().scores[*choice.contestant()][choice.classIndex()];
    record.*card.score = static_cast<std::int32_t>(*typed);
  }
  return true;
}

}  // namespace scorvane
