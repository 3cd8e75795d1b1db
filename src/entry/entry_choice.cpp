#include "entry/entry_choice.h"

#include "model/class_lists.h"
#include "text/format.h"

namespace scorvane {

void EntryChoice::open(Dialog& dialog, const JudgingClasses& classes,
                       const std::vector<std::int32_t>& listed,
                       const std::vector<ListLine>& groupLines) {
  std::vector<ListLine> lines;
  for (const std::int32_t index : listed) lines.push_back({classLine(classes, index), index});
  dialog.setLines(kEntryClassList, lines);
  dialog.setLines(kEntryGroupList, groupLines);
}

bool EntryChoice::take(const Dialog& dialog, ControlId id, ControlEvent event) {
  if (event != ControlEvent::selectionChanged) return false;
  const std::optional<std::int32_t> key = dialog.selectedNumber(id);
  if (id == kEntryClassList) {
    classIndex_ = key.value_or(kNone);
  } else {
    groupIndex_ = key;
  }
  return classIndex_ != kNone && groupIndex_;
}

bool EntryChoice::isMade(Dialog& dialog, const char* groupName) const {
  if (classIndex_ == kNone) {
    dialog.show("You must select a class before entering a score.", "Error");
    return false;
  }
  if (!groupIndex_) {
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
  groupIndex_.reset();
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
