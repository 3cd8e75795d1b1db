#include "entry/entry_choice.h"

#include <utility>

#include "model/class_lists.h"
#include "text/format.h"

namespace scorvane {

void EntryChoice::open(Dialog& dialog, const JudgingClasses& classes,
                       std::vector<std::int32_t> listed,
                       const std::vector<std::string>& groupLines) {
  listed_ = std::move(listed);
  dialog.setLines(kEntryClassList, classLines(classes, listed_));
  dialog.setLines(kEntryGroupList, groupLines);
}

bool EntryChoice::take(const Dialog& dialog, ControlId id, ControlEvent event) {
  if (event != ControlEvent::selectionChanged) return false;
  const std::optional<int> line = dialog.selection(id);
  if (id == kEntryClassList) {
    classIndex_ = line ? listed_.at(static_cast<std::size_t>(*line)) : kNone;
  } else {
    groupIndex_ = line.value_or(kNone);
  }
  return classIndex_ != kNone && groupIndex_ != kNone;
}

bool EntryChoice::isMade(Dialog& dialog, const char* groupName) const {
  if (classIndex_ == kNone) {
    dialog.show("You must select a class before entering a score.", "Error");
    return false;
  }
  if (groupIndex_ == kNone) {
    dialog.show(formatText("You must select a %s before entering a score.", groupName), "Error");
    return false;
  }
  return true;
}

void EntryChoice::showContestant(Dialog& dialog, std::optional<ContestantNumber> number) {
  contestant_ = number;
  dialog.setText(kContestantField, number ? std::to_string(*number) : "");
}

void EntryChoice::clear(Dialog& dialog) {
  classIndex_ = kNone;
  groupIndex_ = kNone;
  dialog.select(kEntryClassList, std::nullopt);
  dialog.select(kEntryGroupList, std::nullopt);
  showContestant(dialog, std::nullopt);
}

bool confirmReentry(Window& owner, const EnteredCount& count, const char* kind) {
  if (count.entered == 0) return true;
  const std::string found =
      formatText("This group has %d (out of %d) %s scores that have already been entered.",
                 count.entered, count.entered + count.missing, kind);
  const std::string question =
      formatText("%s\n\n\nWould you like to re-enter scores for this group?", found.c_str());
  return owner.ask({question, "Information", Buttons::yesNo, Answer::yes}) != Answer::no;
}

}  // namespace scorvane
