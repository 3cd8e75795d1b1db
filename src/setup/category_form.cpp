#include "setup/category_form.h"

#include <cstddef>
#include <string>
#include <vector>

#include "model/contest.h"
#include "session/open_contest.h"
#include "setup/setup_contest_controls.h"
#include "ui/field_text.h"

namespace scorvane {

using namespace setup_contest;

namespace {

void refuse(Dialog& dialog, const char* message) {
  dialog.show(message, "Information");
}

// Back to adding: nothing selected and an empty edit box, ready for the next category.
void startAdding(Dialog& dialog) {
  dialog.select(kCategoryList, std::nullopt);
  dialog.setText(kCategoryText, "");
  dialog.focus(kCategoryText);
  dialog.setDefaultButton(kAddCategory);
}

void addCategory(Dialog& dialog) {
  if (dialog.selection(kCategoryList)) {
    refuse(dialog, "When a category is selected Update and Delete are the only valid buttons.");
    return;
  }
  const std::string category = fieldText(dialog, kCategoryText);
  if (category.empty()) {
    refuse(dialog, "Category cannot be empty.");
    return;
  }
  auto& categories = currentContest().categories;
  // A lone "none" only stands for having no category yet.
  if (categories.size() == 1 && categories[0] == kNoCategory) {
    categories.clear();
    dialog.removeLine(kCategoryList, 0);
  }
  categories.push_back(category);
  dialog.addLine(kCategoryList, {category, category});
  startAdding(dialog);
}

void updateCategory(Dialog& dialog) {
  const auto selected = dialog.selection(kCategoryList);
  if (!selected) {
    refuse(dialog, "No category selected.");
    return;
  }
  auto& categories = currentContest().categories;
  const auto index = static_cast<std::size_t>(*selected);
  const std::string category = fieldText(dialog, kCategoryText);
  if (category.empty()) {
    refuse(dialog, "Category cannot be empty.");
    dialog.setText(kCategoryText, index < categories.size() ? categories[index] : "");
    return;
  }
  dialog.insertLine(kCategoryList, *selected, {category, category});
  dialog.removeLine(kCategoryList, *selected + 1);
  // Deliberate: the first category's stored name never changes here, though its line shows the new
  // text until the dialog is opened again.
  if (index > 0 && index < categories.size()) categories[index] = category;
  startAdding(dialog);
}

void deleteCategory(Dialog& dialog) {
  Contest& contest = currentContest();
  if (contest.classes.count() > 0) {
    // Classes refer to categories by position.
    refuse(dialog,
           "Once classes have been entered, categories can no longer be deleted.  They can only "
           "be added and/or updated.");
    return;
  }
  const auto selected = dialog.selection(kCategoryList);
  if (!selected) {
    refuse(dialog, "No category selected.");
    return;
  }
  if (static_cast<std::size_t>(*selected) < contest.categories.size()) {
    contest.categories.erase(contest.categories.begin() + *selected);
  }
  dialog.removeLine(kCategoryList, *selected);
  startAdding(dialog);
}

void selectCategory(Dialog& dialog) {
  const auto category = dialog.selectedText(kCategoryList);
  if (!category) return;
  dialog.setText(kCategoryText, *category);
  dialog.focus(kCategoryText);
  dialog.setDefaultButton(kUpdateCategory);
}

// While nothing is selected, Enter in the edit box adds; anywhere else it closes the dialog.
void onTextFocus(Dialog& dialog, ControlEvent event) {
  if (dialog.selection(kCategoryList)) return;
  if (event == ControlEvent::gotFocus) dialog.setDefaultButton(kAddCategory);
  if (event == ControlEvent::lostFocus) dialog.setDefaultButton(kDone);
}

}  // namespace

void showCategories(Dialog& dialog) {
  dialog.setText(kCategoryText, "");
  std::vector<ListLine> lines;
  for (const std::string& category : currentContest().categories) {
    lines.push_back({category, category});
  }
  dialog.setLines(kCategoryList, lines);
  dialog.select(kCategoryList, std::nullopt);
}

void onCategoryEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (id == kCategoryText) onTextFocus(dialog, event);
  if (id == kCategoryList && event == ControlEvent::selectionChanged) selectCategory(dialog);
  if (event != ControlEvent::clicked) return;
  if (id == kAddCategory) addCategory(dialog);
  if (id == kUpdateCategory) updateCategory(dialog);
  if (id == kDeleteCategory) deleteCategory(dialog);
}

}  // namespace scorvane
