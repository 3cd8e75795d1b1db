#include "setup/class_storing.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "text/format.h"

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

template <typename Element>
void removeAt(std::vector<Element>& column, std::int32_t index) {
  if (index >= 0 && static_cast<std::size_t>(index) < column.size()) {
    column.erase(column.begin() + index);
  }
}

void emptyFirstName(JudgingClasses& classes) {
  if (!classes.className.empty()) classes.className[0].clear();
}

// The official letter's checks and the undo of each.
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

std::optional<std::string> storeClass(JudgingClasses& classes, const ClassForm& form,
                                      Index updated) {
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

void removeClass(JudgingClasses& classes, std::int32_t index) {
  removeAt(classes.className, index);
  removeAt(classes.reasonsFlag, index);
  removeAt(classes.questionsFlag, index);
  removeAt(classes.officialLetter, index);
  removeAt(classes.cut1, index);
  removeAt(classes.cut2, index);
  removeAt(classes.cut3, index);
  removeAt(classes.categoryIndex, index);
}

}  // namespace scorvane
