#include "setup/setup_contest_dialog.h"

#include <array>
#include <cstdint>
#include <optional>

#include "model/numbering.h"
#include "model/reasons_places.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "setup/category_form.h"
#include "setup/setup_ids.h"
#include "text/report_marks.h"
#include "ui/field_text.h"

namespace scorvane {

namespace {

// Why a field cannot be stored, and where the focus goes then.
struct Refusal {
  Message message;
  ControlId focus;
};

struct TextField {
  ControlId id;
  std::string ContestSettings::*value;
  const char* emptyMessage;
  ControlId focusWhenEmpty;
};

constexpr std::array kTextFields = {
    TextField{IDC_CONTEST_NAME, &ContestSettings::contestName, "The contest name cannot be empty.",
              IDC_CONTEST_NAME},
    TextField{IDC_DIVISION_NAME, &ContestSettings::divisionName,
              "The division name cannot be empty.", IDC_DIVISION_NAME},
    // Odd but required, docs/required-behaviour.md: empty-date-focuses-the-name
    TextField{IDC_CONTEST_DATE, &ContestSettings::contestDate, "The contest date cannot be empty.",
              IDC_CONTEST_NAME},
};

struct NumberField {
  ControlId id;
  std::int32_t ContestSettings::*value;
};

constexpr std::array kNumberFields = {
    NumberField{IDC_START_NUMBER, &ContestSettings::startNum},
    NumberField{IDC_NUMBER_TO_REPORT, &ContestSettings::numToReport},
    NumberField{IDC_NUMBER_OF_GROUPS, &ContestSettings::numGroups},
    NumberField{IDC_REASONS_TAKERS, &ContestSettings::numReasonsGroups},
    NumberField{IDC_NUMBER_TO_SCORE, &ContestSettings::numToScore},
    NumberField{IDC_NUMBER_PER_TEAM, &ContestSettings::numPerTeam},
    NumberField{IDC_TOTAL_PER_TEAM, &ContestSettings::totalNumPerTeam},
};

constexpr std::int32_t kMostGroups = 26;

std::optional<Refusal> storeTexts(const Dialog& dialog, ContestSettings& settings) {
  for (const TextField& field : kTextFields) {
    const std::string text = fieldText(dialog, field.id);
    if (text.empty()) return Refusal{{field.emptyMessage, "Error"}, field.focusWhenEmpty};
    settings.*field.value = text;
  }
  return std::nullopt;
}

void storeNumbering(const Dialog& dialog, ContestSettings& settings) {
  settings.startNum = fieldNumber(dialog, IDC_START_NUMBER);
  settings.nextContestantNum = settings.startNum;
  settings.numToReport = fieldNumber(dialog, IDC_NUMBER_TO_REPORT);
  settings.reportPercent = dialog.isChecked(IDC_REPORT_PERCENT);
}

std::optional<Refusal> storeGroups(const Dialog& dialog, ContestSettings& settings) {
  const std::int32_t groups = fieldNumber(dialog, IDC_NUMBER_OF_GROUPS);
  if (groups < 1 || groups > kMostGroups) {
    return Refusal{{"The number of groups must be between 1 and 26.", "Error"},
                   IDC_NUMBER_OF_GROUPS};
  }
  settings.numGroups = groups;
  return std::nullopt;
}

// Odd but required, docs/required-behaviour.md: reasons-order-emptied-at-once
std::optional<Refusal> storeReasonsTakers(const Dialog& dialog, Contest& contest,
                                          std::int32_t atOpening) {
  const std::int32_t takers = fieldNumber(dialog, IDC_REASONS_TAKERS);
  contest.settings.numReasonsGroups = takers < 1 ? atOpening : takers;
  if (takers < 1) {
    return Refusal{{"There must be at least one (1) reasons taker.\nIf you do not have any reasons "
                    "classes, this value will be ignored.",
                    "Error"},
                   IDC_REASONS_TAKERS};
  }
  if (takers != atOpening) resetReasonsOrder(contest, reasonsRows(contest));
  return std::nullopt;
}

// Odd but required, docs/required-behaviour.md: team-sizes-refused-as-information
std::optional<Refusal> storeTeamSizes(const Dialog& dialog, ContestSettings& settings) {
  const std::int32_t toScore = fieldNumber(dialog, IDC_NUMBER_TO_SCORE);
  const std::int32_t perTeam = fieldNumber(dialog, IDC_NUMBER_PER_TEAM);
  const std::int32_t total = fieldNumber(dialog, IDC_TOTAL_PER_TEAM);
  if (toScore < 1) {
    return Refusal{{"The number to score must be one (1) or greater.", "Information"},
                   IDC_NUMBER_TO_SCORE};
  }
  if (perTeam < 1) {
    return Refusal{
        {"The number of contestants per team must be one (1) or greater.", "Information"},
        IDC_NUMBER_PER_TEAM};
  }
  if (total < 1) {
    return Refusal{{"The total number per team must be one (1) or greater.", "Information"},
                   IDC_TOTAL_PER_TEAM};
  }
  if (perTeam < toScore) {
    return Refusal{{"The number of contestants per team must be greater (or equal to) than the "
                    "number of contestants to score.",
                    "Error"},
                   IDC_NUMBER_PER_TEAM};
  }
  if (total < perTeam) {
    return Refusal{{"The total number of contestants per team must be greater than (or equal to) "
                    "the number of contestants per team.",
                    "Error"},
                   IDC_TOTAL_PER_TEAM};
  }
  settings.numToScore = toScore;
  settings.numPerTeam = perTeam;
  settings.totalNumPerTeam = total;
  return std::nullopt;
}

// Stores field by field. What came before the refused one stays stored; only Cancel takes it back.
std::optional<Refusal> storeFields(const Dialog& dialog, Contest& contest,
                                   const ContestSettings& atOpening) {
  ContestSettings& settings = contest.settings;
  if (auto refusal = storeTexts(dialog, settings)) return refusal;
  storeNumbering(dialog, settings);
  if (auto refusal = storeGroups(dialog, settings)) return refusal;
  if (auto refusal = storeReasonsTakers(dialog, contest, atOpening.numReasonsGroups)) {
    return refusal;
  }
  return storeTeamSizes(dialog, settings);
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
  dialog.setChecked(IDC_REPORT_PERCENT, contest.settings.reportPercent);
  showCategories(dialog, contest.categories);
  if (!contest.teams.empty()) {
    // The teams have their numbers and slots already.
    dialog.setEnabled(IDC_START_NUMBER, false);
    dialog.setEnabled(IDC_TOTAL_PER_TEAM, false);
  }
  dialog.focus(IDC_CONTEST_NAME);
  dialog.selectText(IDC_CONTEST_NAME);
}

void SetupContestDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  onCategoryEvent(dialog, currentContest(), id, event);
  if (event != ControlEvent::clicked) return;
  if (id == IDC_CONTEST_DONE) commit(dialog);
  if (id == IDC_CONTEST_CANCEL) cancel(dialog);
}

// Odd but required, docs/required-behaviour.md: close-box-is-done
void SetupContestDialog::onClose(Dialog& dialog) {
  commit(dialog);
}

void SetupContestDialog::commit(Dialog& dialog) const {
  Contest& contest = currentContest();
  if (const auto refusal = storeFields(dialog, contest, settingsAtOpening_)) {
    dialog.ask(refusal->message);
    dialog.focus(refusal->focus);
    return;
  }
  regroupContestants(contest);
  if (contest.categories.empty()) contest.categories.emplace_back(kNoCategory);
  reportText() = kWelcomeText;
  saveCurrent(dialog);
  dialog.end(kOkId);
}

void SetupContestDialog::cancel(Dialog& dialog) const {
  Contest& contest = currentContest();
  reportText() = kWelcomeText;
  const ContestantNumber nextNumber = contest.settings.nextContestantNum;
  contest.settings = settingsAtOpening_;
  contest.settings.nextContestantNum = nextNumber;
  contest.categories = categoriesAtOpening_;
  dialog.end(kCancelId);
}

}  // namespace scorvane
