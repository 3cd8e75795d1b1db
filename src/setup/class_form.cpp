#include "setup/class_form.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "setup/setup_ids.h"
#include "text/format.h"
#include "ui/field_text.h"

namespace scorvane {

namespace {

using Index = std::optional<std::int32_t>;

template <typename Element>
void store(std::vector<Element>& column, Index updated, Element value) {
  if (!updated) {
    column.push_back(std::move(value));
    return;
  }
  const auto index = static_cast<std::size_t>(*updated);
  // An earlier undo may have left this column without the element.
  if (index >= column.size()) column.resize(index + 1);
  column[index] = std::move(value);
}

template <typename Element>
void removeLast(std::vector<Element>& column) {
  if (!column.empty()) column.pop_back();
}

void emptyFirstName(JudgingClasses& classes) {
  if (!classes.className.empty()) classes.className[0].clear();
}

// Why the official letter is refused, after the undo that goes with it.
std::optional<std::string> checkOfficial(JudgingClasses& classes, const std::string& official) {
  if (official.empty()) {
    removeLast(classes.className);
    return "Error:  no score entered.";
  }
  if (official.size() > 1) {
    removeLast(classes.className);
    return "Error:  too many letters entered for score.";
  }
  if (!isOrderLetter(official[0])) {
    emptyFirstName(classes);
    removeLast(classes.className);
    return formatText("Error:  score must be between A and X <%s>.", official.c_str());
  }
  return std::nullopt;
}

// Leaves the cut columns alone: their values are stored only after the check.
void undoIllegalCuts(JudgingClasses& classes) {
  if (classes.count() == 0) return;
  emptyFirstName(classes);
  removeLast(classes.className);
  removeLast(classes.officialLetter);
  removeLast(classes.reasonsFlag);
  removeLast(classes.questionsFlag);
  removeLast(classes.categoryIndex);
}

}  // namespace

ClassForm readClassForm(const Dialog& dialog) {
  ClassForm form;
  form.name = fieldText(dialog, IDC_CLASS_NAME);
  form.reasons = dialog.isChecked(IDC_CLASS_REASONS);
  form.questions = dialog.isChecked(IDC_CLASS_QUESTIONS);
  form.official = fieldText(dialog, IDC_OFFICIAL_LETTER);
  form.category = dialog.selection(IDC_CLASS_CATEGORY).value_or(-1);
  form.cut1 = dialog.number(IDC_CUT1).value_or(0);
  form.cut2 = dialog.number(IDC_CUT2).value_or(0);
  form.cut3 = dialog.number(IDC_CUT3).value_or(0);
  return form;
}

std::optional<std::string> storeClass(JudgingClasses& classes, const ClassForm& form,
                                      Index updated) {
  if (form.name.empty()) return "You didn't enter a class name!";
  store(classes.className, updated, form.name);
  if (auto refusal = checkOfficial(classes, form.official)) return refusal;
  store(classes.officialLetter, updated, form.official[0]);
  store(classes.reasonsFlag, updated, form.reasons);
  store(classes.questionsFlag, updated, form.questions);
  store(classes.categoryIndex, updated, form.category);
  if (!validateCuts(form.cut1, form.cut2, form.cut3)) {
    undoIllegalCuts(classes);
    return "Illegal value for cuts.\n"
           "The total of the three cuts cannot be greater than 15.\n"
           "If the cuts add to 15, the middle cut cannot be greater than 5.\n"
           "If the cuts add to 14, the middle cut cannot be greater than 8.\n";
  }
  store(classes.cut1, updated, static_cast<std::int32_t>(form.cut1));
  store(classes.cut2, updated, static_cast<std::int32_t>(form.cut2));
  store(classes.cut3, updated, static_cast<std::int32_t>(form.cut3));
  return std::nullopt;
}

}  // namespace scorvane
