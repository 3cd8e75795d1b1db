#include "setup/category_form.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "model/class_lists.h"
#include "setup/setup_ids.h"
#include "ui/field_text.h"

namespace scorvane {

namespace {

void refuse(Dialog& dialog, const char* message) {
  dialog.show(message, "Information");
}

// What does not fit would be lost with the next save, and its classes would move to another
// category. The text typed stays, to be shortened.
void refuseTooLong(Dialog& dialog) {
  refuse(dialog,
         "The names of the categories are too long together to be saved.  Please use a shorter "
         "name.");
  dialog.focus(IDC_CATEGORY_NAME);
}

// Back to adding: nothing selected and an empty edit box, ready for the next category.
void startAdding(Dialog& dialog) {
  dialog.select(IDC_CATEGORY_LIST, std::nullopt);
  dialog.setText(IDC_CATEGORY_NAME, "");
  dialog.focus(IDC_CATEGORY_NAME);
  dialog.setDefaultButton(IDC_ADD_CATEGORY);
}

void addCategory(Dialog& dialog, std::vector<std::string>& categories) {
  if (dialog.selection(IDC_CATEGORY_LIST)) {
    refuse(dialog, "When a category is selected Update and Delete are the only valid buttons.");
    return;
  }
  const std::string category = fieldText(dialog, IDC_CATEGORY_NAME);
  if (category.empty()) {
    refuse(dialog, "Category cannot be empty.");
    return;
  }
  // A lone "none" means that there is no category yet.
  const bool isFirst = categories.size() == 1 && categories[0] == kNoCategory;
  std::vector<std::string> extended = isFirst ? std::vector<std::string>() : categories;
  extended.push_back(category);
  if (!categoriesFit(extended)) return refuseTooLong(dialog);
  categories = std::move(extended);
  if (isFirst) dialog.removeLine(IDC_CATEGORY_LIST, 0);
  dialog.addLine(IDC_CATEGORY_LIST, {category, category});
  startAdding(dialog);
}

void updateCategory(Dialog& dialog, std::vector<std::string>& categories) {
  const auto selected = dialog.selection(IDC_CATEGORY_LIST);
  if (!selected) {
    refuse(dialog, "No category selected.");
    return;
  }
  const auto index = static_cast<std::size_t>(*selected);
  const std::string category = fieldText(dialog, IDC_CATEGORY_NAME);
  if (category.empty()) {
    refuse(dialog, "Category cannot be empty.");
    dialog.setText(IDC_CATEGORY_NAME, index < categories.size() ? categories[index] : "");
    return;
  }
  std::vector<std::string> updated = categories;
  // Odd but required, docs/required-behaviour.md: first-category-keeps-its-name
  if (index > 0 && index < updated.size()) updated[index] = category;
  // Categories that came from elsewhere can be too long already; shortening one is always allowed.
  const bool isLonger = index < categories.size() && category.size() > categories[index].size();
  if (isLonger && !categoriesFit(updated)) return refuseTooLong(dialog);
  categories = std::move(updated);
  dialog.insertLine(IDC_CATEGORY_LIST, *selected, {category, category});
  dialog.removeLine(IDC_CATEGORY_LIST, *selected + 1);
  startAdding(dialog);
}

void deleteCategory(Dialog& dialog, Contest& contest) {
  if (contest.classes.count() > 0) {
    // Classes refer to categories by position.
    refuse(dialog,
           "Once classes have been entered, categories can no longer be deleted.  They can only "
           "be added and/or updated.");
    return;
  }
  const auto selected = dialog.selection(IDC_CATEGORY_LIST);
  if (!selected) {
    refuse(dialog, "No category selected.");
    return;
  }
  if (static_cast<std::size_t>(*selected) < contest.categories.size()) {
    contest.categories.erase(contest.categories.begin() + *selected);
  }
  dialog.removeLine(IDC_CATEGORY_LIST, *selected);
  startAdding(dialog);
}

void selectCategory(Dialog& dialog) {
  const auto category = dialog.selectedText(IDC_CATEGORY_LIST);
  if (!category) return;
  dialog.setText(IDC_CATEGORY_NAME, *category);
  dialog.focus(IDC_CATEGORY_NAME);
  dialog.setDefaultButton(IDC_UPDATE_CATEGORY);
}

// While nothing is selected, Enter in the edit box adds; anywhere else it closes the dialog.
void onTextFocus(Dialog& dialog, ControlEvent event) {
  if (dialog.selection(IDC_CATEGORY_LIST)) return;
  if (event == ControlEvent::gotFocus) dialog.setDefaultButton(IDC_ADD_CATEGORY);
  if (event == ControlEvent::lostFocus) dialog.setDefaultButton(IDC_CONTEST_DONE);
}

}  // namespace

void showCategories(Dialog& dialog, const std::vector<std::string>& categories) {
  dialog.setText(IDC_CATEGORY_NAME, "");
  std::vector<ListLine> lines;
  for (const std::string& category : categories) {
    lines.push_back({category, category});
  }
  dialog.setLines(IDC_CATEGORY_LIST, lines);
  dialog.select(IDC_CATEGORY_LIST, std::nullopt);
}

void onCategoryEvent(Dialog& dialog, Contest& contest, ControlId id, ControlEvent event) {
  if (id == IDC_CATEGORY_NAME) onTextFocus(dialog, event);
  if (id == IDC_CATEGORY_LIST && event == ControlEvent::selectionChanged) selectCategory(dialog);
  if (event != ControlEvent::clicked) return;
  if (id == IDC_ADD_CATEGORY) addCategory(dialog, contest.categories);
  if (id == IDC_UPDATE_CATEGORY) updateCategory(dialog, contest.categories);
  if (id == IDC_DELETE_CATEGORY) deleteCategory(dialog, contest);
}

}  // namespace scorvane
