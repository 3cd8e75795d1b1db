// The "Last Score Entered" part of the entry dialogs.
#pragma once

#include "model/contest.h"
#include "ui/dialog.h"

namespace scorvane {

/// Shows the contestant number.
void showLastContestant(Dialog& dialog, ContestantNumber number);
/// Shows the number, the stored letter and placing score, and the class's official letter and cuts.
void showLastPlacing(Dialog& dialog, const Contest& contest, ContestantNumber number,
                     std::int32_t classIndex);
/// Shows the stored reasons score, or "---" for a class without reasons.
void showLastReasons(Dialog& dialog, const Contest& contest, ContestantNumber number,
                     std::int32_t classIndex);
/// Shows the stored questions score, or "---" for a class without questions.
void showLastQuestions(Dialog& dialog, const Contest& contest, ContestantNumber number,
                       std::int32_t classIndex);

}  // namespace scorvane
