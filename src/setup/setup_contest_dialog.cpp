#include "setup/setup_contest_dialog.h"

#include <array>
#include <cstdint>

#include "model/numbering.h"
#include "model/reasons_places.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "setup/category_form.h"
#include "setup/setup_contest_controls.h"
#include "text/report_marks.h"
#include "ui/field_text.h"

namespace scorvane {

using namespace setup_contest;

namespace {

struct TextField {
  ControlId id;
  std::string ContestSettings::*value;
  const char* emptyMessage;
  ControlId focusWhenEmpty;
};

constexpr std::array kTextFields = {
    TextField{kContestName, &ContestSettings::contestName, "The contest name cannot be empty.",
              kContestName},
    TextField{kDivisionName, &ContestSettings::divisionName, "The division name cannot be empty.",
              kDivisionName},
    // Deliberate: an empty date sends the focus to the contest name, not to the date.
    TextField{kContestDate, &ContestSettings::contestDate, "The contest date cannot be empty.",
              kContestName},
};

struct NumberField {
  ControlId id;
  std::int32_t ContestSettings::*value;
};

constexpr std::array kNumberFields = {
    NumberField{kStartNumber, &ContestSettings::startNum},
    NumberField{kNumberToReport, &ContestSettings::numToReport},
    NumberField{kGroups, &ContestSettings::numGroups},
    NumberField{kReasonsTakers, &ContestSettings::numReasonsGroups},
    NumberField{kNumberToScore, &ContestSettings::numToScore},
    NumberField{kPerTeam, &ContestSettings::numPerTeam},
    NumberField{kTotalPerTeam, &ContestSettings::totalNumPerTeam},
};

constexpr std::int32_t kMostGroups = 26;

bool refuse(Dialog& dialog, const char* message, const char* caption, ControlId focus) {
  dialog.show(message, caption);
  dialog.focus(focus);
  return false;
}

bool storeTexts(Dialog& dialog) {
  for (const TextField& field : kTextFields) {
    const std::string text = fieldText(dialog, field.id);
    if (text.empty()) return refuse(dialog, field.emptyMessage, "Error", field.focusWhenEmpty);
    currentContest().settings.*field.value = text;
  }
  return true;
}

void storeNumbering(const Dialog& dialog) {
  ContestSettings& settings = currentContest().settings;
  settings.startNum = fieldNumber(dialog, kStartNumber);
  settings.nextContestantNum = settings.startNum;
  settings.numToReport = fieldNumber(dialog, kNumberToReport);
  settings.reportPercent = dialog.isChecked(kReportPercent);
}

bool storeGroups(Dialog& dialog) {
  const std::int32_t groups = fieldNumber(dialog, kGroups);
  if (groups < 1 || groups > kMostGroups) {
    return refuse(dialog, "The number of groups must be between 1 and 26.", "Error", kGroups);
  }
  currentContest().settings.numGroups = groups;
  return true;
}

bool storeTeamSizes(Dialog& dialog) {
  const std::int32_t toScore = fieldNumber(dialog, kNumberToScore);
  const std::int32_t perTeam = fieldNumber(dialog, kPerTeam);
  const std::int32_t total = fieldNumber(dialog, kTotalPerTeam);
  if (toScore < 1) {
    return refuse(dialog, "The number to score must be one (1) or greater.", "Information",
                  kNumberToScore);
  }
  if (perTeam < 1) {
    return refuse(dialog, "The number of contestants per team must be one (1) or greater.",
                  "Information", kPerTeam);
  }
  if (total < 1) {
    return refuse(dialog, "The total number per team must be one (1) or greater.", "Information",
                  kTotalPerTeam);
  }
  if (perTeam < toScore) {
    return refuse(dialog,
                  "The number of contestants per team must be greater (or equal to) than the "
                  "number of contestants to score.",
                  "Error", kPerTeam);
  }
  if (total < perTeam) {
    return refuse(dialog,
                  "The total number of contestants per team must be greater than (or equal to) "
                  "the number of contestants per team.",
                  "Error", kTotalPerTeam);
  }
  ContestSettings& settings = currentContest().settings;
  settings.numToScore = toScore;
  settings.numPerTeam = perTeam;
  settings.totalNumPerTeam = total;
  return true;
}

}  // namespace

void SetupContestDialog::onOpen(Dialog& dialog) {
  const Contest& contest = currentContest();
  settingsAtOpening_ = contest.settings;
  categoriesAtOpening_ = contest.categories;
  for (const TextField& field : kTextFields) {
    dialog.setText(field.id, contest.settings.*field.value);
  }
  for (const NumberField& field : kNumberFields) {
    showNumber(dialog, field.id, contest.settings.*field.value);
  }
  dialog.setChecked(kReportPercent, contest.settings.reportPercent);
  showCategories(dialog);
  if (!contest.teams.empty()) {
    // The teams' numbers and slots are given out already.
    dialog.setEnabled(kStartNumber, false);
    dialog.setEnabled(kTotalPerTeam, false);
  }
  dialog.focus(kContestName);
  dialog.selectText(kContestName);
}

void SetupContestDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  onCategoryEvent(dialog, id, event);
  if (event != ControlEvent::clicked) return;
  if (id == kDone) commit(dialog);
  if (id == kCancel) cancel(dialog);
}

// Deliberate: the close box is no cancel.
void SetupContestDialog::onClose(Dialog& dialog) {
  commit(dialog);
}

// What earlier steps stored stays stored when a later one refuses; only Cancel takes it back.
void SetupContestDialog::commit(Dialog& dialog) {
  if (!storeTexts(dialog)) return;
  storeNumbering(dialog);
  if (!storeGroups(dialog) || !storeReasonsTakers(dialog) || !storeTeamSizes(dialog)) return;
  Contest& contest = currentContest();
  regroupContestants(contest);
  if (contest.categories.empty()) contest.categories.emplace_back(kNoCategory);
  reportText() = kWelcomeText;
  saveCurrent(dialog);
  dialog.end(kOkId);
}

// The reasons order is cleared at once, with a row for every slot of the team size as it was so
// far, and Cancel does not bring it back. Deliberate.
bool SetupContestDialog::storeReasonsTakers(Dialog& dialog) const {
  Contest& contest = currentContest();
  const std::int32_t takers = fieldNumber(dialog, kReasonsTakers);
  if (takers < 1) {
    contest.settings.numReasonsGroups = settingsAtOpening_.numReasonsGroups;
    return refuse(dialog,
                  "There must be at least one (1) reasons taker.\nIf you do not have any reasons "
                  "classes, this value will be ignored.",
                  "Error", kReasonsTakers);
  }
  contest.settings.numReasonsGroups = takers;
  if (takers != settingsAtOpening_.numReasonsGroups) clearReasonsOrder(contest);
  return true;
}

void SetupContestDialog::cancel(Dialog& dialog) const {
  reportText() = kWelcomeText;
  ContestSettings& settings = currentContest().settings;
  const ContestantNumber nextNumber = settings.nextContestantNum;
  settings = settingsAtOpening_;
  settings.nextContestantNum = nextNumber;
  currentContest().categories = categoriesAtOpening_;
  dialog.end(kCancelId);
}

}  // namespace scorvane
