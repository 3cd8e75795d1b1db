#include "entry/group_entry.h"

#include <algorithm>
#include <utility>

#include "text/format.h"

namespace {

constexpr std::size_t kLetterColumn = 3;

std::vector<std::string> groupLines(const std::vector<char>& letters) {
  std::vector<std::string> lines;
  lines.reserve(letters.size());
  for (const char letter : letters) lines.push_back(formatText("   %c   ", letter));
  return lines;
}

// The group's letter stands in its line. Its position would do for groups "A" to "Z"; beyond them
// a sorted list need not be in the order of the letters.
char letterOfLine(const std::string& line) {
  return line.size() > kLetterColumn ? line[kLetterColumn] : '\0';
}

}  // namespace

void GroupEntry::open(Dialog& dialog, std::vector<std::int32_t> listed) {
  const Contest& contest = currentContest();
  choice_.open(dialog, contest.classes, std::move(listed), groupLines(contest.groupLetters));
  dialog.focus(kind_.scoreField);
}

void GroupEntry::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (!choice_.take(dialog, id, event)) return;
  group_ = letterOfLine(dialog.line(kEntryGroupList, choice_.groupIndex()));
  start(dialog);
}

void GroupEntry::start(Dialog& dialog) {
  const Contest& contest = currentContest();
  const std::optional<ContestantNumber> first = firstMember(contest, group_);
  // A group without members deliberately leaves everything as it stands, also a contestant still
  // shown from the group chosen before.
  if (!first) return;
  choice_.setContestant(first);
  const EnteredCount count = countEntered(contest, group_, choice_.classIndex(), kind_.score);
  if (mayEnterScores(dialog, count, kind_.name)) {
    choice_.showContestant(dialog, first);
  } else {
    choice_.clear(dialog);
  }
  dialog.focus(kind_.scoreField);
}

void GroupEntry::advance(Dialog& dialog) {
  const std::optional<ContestantNumber> current = choice_.contestant();
  const auto next = current ? nextMember(currentContest(), group_, *current) : std::nullopt;
  if (next) {
    choice_.showContestant(dialog, next);
  } else {
    choice_.clear(dialog);
  }
}
