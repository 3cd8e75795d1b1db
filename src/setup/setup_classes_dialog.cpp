#include "setup/setup_classes_dialog.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "model/contest.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "setup/class_table.h"
#include "setup/setup_classes_controls.h"
#include "text/format.h"
#include "text/report_marks.h"
#include "ui/field_text.h"

namespace scorvane {

using namespace setup_classes;

namespace {

// The order of the four animals for the letter typed; an empty field leaves the old one.
void showOfficialOrder(Dialog& dialog) {
  const std::string official = dialog.text(kOfficial);
  if (official.empty()) return;
  const auto order = orderOfLetter(official[0]);
  dialog.setText(kOfficialOrder,
                 formatText("( %d , %d , %d , %d )", order[0], order[1], order[2], order[3]));
}

void moveOn(Dialog& dialog, ControlId next) {
  dialog.focus(next);
  if (next != kCategory) dialog.selectText(next);
}

ClassForm readForm(const Dialog& dialog) {
  ClassForm form;
  form.name = fieldText(dialog, kClassName);
  form.reasons = dialog.isChecked(kReasons);
  form.questions = dialog.isChecked(kQuestions);
  form.official = fieldText(dialog, kOfficial);
  form.category = dialog.selection(kCategory).value_or(-1);
  form.cut1 = dialog.number(kCut1).value_or(0);
  form.cut2 = dialog.number(kCut2).value_or(0);
  form.cut3 = dialog.number(kCut3).value_or(0);
  return form;
}

void showCuts(Dialog& dialog, const Cuts& cuts) {
  showNumber(dialog, kCut1, cuts.cut1);
  showNumber(dialog, kCut2, cuts.cut2);
  showNumber(dialog, kCut3, cuts.cut3);
}

void clearAll(Dialog& dialog) {
  if (dialog.confirm("This will delete all classes!  Continue?")) {
    // The contestants' scores stay, even those of classes that are gone. Deliberate.
    currentContest().classes.clear();
    for (const ControlId list : kTable) dialog.clearLines(list);
    dialog.focus(kClassName);
  }
  dialog.setDefaultButton(kAdd);
}

void finish(Dialog& dialog) {
  reportText() = kWelcomeText;
  recomputeAllPlacingScores(currentContest());
  saveCurrent(dialog);
  dialog.end(kOkId);
}

}  // namespace

void SetupClassesDialog::onOpen(Dialog& dialog) {
  Contest& contest = currentContest();
  if (contest.categories.empty()) contest.categories.emplace_back(kNoCategory);
  dialog.linkScrolling({kTable.begin(), kTable.end()});
  dialog.setLines(kCategory, contest.categories);
  reloadClassTable(dialog);
  resetForm(dialog);
}

void SetupClassesDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (event == ControlEvent::textChanged) onTextChanged(dialog, id);
  if (event == ControlEvent::clicked) onClicked(dialog, id);
  if (event != ControlEvent::selectionChanged) return;
  if (std::find(kTable.begin(), kTable.end(), id) == kTable.end()) return;
  if (const auto line = dialog.selection(id)) showClass(dialog, *line);
}

void SetupClassesDialog::onClose(Dialog& dialog) {
  finish(dialog);
}

// A letter and three digits are typed without a Tab in between.
void SetupClassesDialog::onTextChanged(Dialog& dialog, ControlId id) const {
  if (id == kOfficial) showOfficialOrder(dialog);
  if (filling_) return;
  if (id == kOfficial) moveOn(dialog, kCut1);
  if (id == kCut1) moveOn(dialog, kCut2);
  if (id == kCut2) moveOn(dialog, kCut3);
  if (id == kCut3) moveOn(dialog, kCategory);
}

void SetupClassesDialog::onClicked(Dialog& dialog, ControlId id) {
  if (id == kAdd) addClass(dialog);
  if (id == kUpdate) updateClass(dialog);
  if (id == kRemove) removeSelected(dialog);
  if (id == kNewClass) resetForm(dialog);
  if (id == kClearAll) clearAll(dialog);
  if (id == kDone) finish(dialog);
}

// An empty form is the mode of adding.
void SetupClassesDialog::resetForm(Dialog& dialog) {
  filling_ = true;
  dialog.setText(kClassName, "");
  dialog.setChecked(kReasons, false);
  dialog.setChecked(kQuestions, false);
  dialog.setText(kOfficial, "A");
  showCuts(dialog, {});
  filling_ = false;
  selectInClassTable(dialog, std::nullopt);
  dialog.select(kCategory, 0);
  dialog.focus(kClassName);
  dialog.setDefaultButton(kAdd);
}

void SetupClassesDialog::showClass(Dialog& dialog, int line) {
  selectInClassTable(dialog, line);
  const JudgingClasses& classes = currentContest().classes;
  filling_ = true;
  dialog.setText(kClassName, classes.name(line));
  dialog.setChecked(kReasons, classes.hasReasons(line));
  dialog.setChecked(kQuestions, classes.hasQuestions(line));
  dialog.setText(kOfficial, std::string(1, classes.official(line)));
  showCuts(dialog, classes.cuts(line));
  filling_ = false;
  const std::int32_t category = classes.category(line);
  const bool listed = category >= 0 && category < dialog.lineCount(kCategory);
  dialog.select(kCategory, listed ? std::optional<int>(category) : std::nullopt);
  dialog.setDefaultButton(kUpdate);
}

void SetupClassesDialog::addClass(Dialog& dialog) {
  if (dialog.selection(kNameList)) {
    dialog.show("Once a class is selected you can only update it.", "Warning");
    dialog.setDefaultButton(kUpdate);
    return;
  }
  store(dialog, std::nullopt);
}

void SetupClassesDialog::updateClass(Dialog& dialog) {
  const auto selected = dialog.selection(kNameList);
  if (!selected) {
    dialog.show("No class is selected, so an update is not possible.", "Warning");
    return;
  }
  store(dialog, selected);
}

void SetupClassesDialog::store(Dialog& dialog, std::optional<int> updated) {
  const ClassForm form = readForm(dialog);
  if (form.name.empty()) {
    dialog.show("You didn't enter a class name!", "Warning");
    return;
  }
  JudgingClasses& classes = currentContest().classes;
  if (const auto refusal = storeClass(classes, form, updated)) {
    // The table is not reloaded: what the undo took away shows only after the next change.
    dialog.show(*refusal, "Warning");
    return;
  }
  const std::int32_t last = classes.count() - 1;
  if (!updated && dialog.lineCount(kNameList) == last) {
    appendToClassTable(dialog, last);
  } else {
    // Also for a new class after a refused update, which left a line without a class.
    reloadClassTable(dialog);
  }
  resetForm(dialog);
}

void SetupClassesDialog::removeSelected(Dialog& dialog) {
  const auto selected = dialog.selection(kNameList);
  if (hasScores(currentContest())) {
    dialog.show("You cannot delete a class once scores have been input.", "Error");
  } else if (!selected) {
    dialog.show("No items selected.", "Warning");
  } else {
    removeClass(currentContest().classes, *selected);
    reloadClassTable(dialog);
  }
  resetForm(dialog);
}

}  // namespace scorvane
