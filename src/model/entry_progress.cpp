#include "model/entry_progress.h"

#include <algorithm>

#include "model/numbering.h"

namespace scorvane {

namespace {

bool hasAnything(const Contest& contest, ContestantNumber number) {
  const ClassScores* records = contest.scores.find(number);
  if (records == nullptr) return false;
  return std::any_of(records->begin(), records->end(), [&](const auto& entry) {
    const bool exists = entry.first >= 0 && entry.first < contest.classes.count();
    return exists && std::any_of(kEntryKinds.begin(), kEntryKinds.end(),
                                 [&](EntryKind kind) { return isEntered(entry.second, kind); });
  });
}

}  // namespace

bool isEntered(const ScoreRecord& record, EntryKind kind) {
  switch (kind) {
    case EntryKind::placings:
      return record.letter != kNoLetter;
    case EntryKind::reasons:
      return record.reasonsScore != 0;
    case EntryKind::questions:
      break;
  }
  return record.questionsScore != 0;
}

bool isAsked(const JudgingClasses& classes, std::int32_t classIndex, EntryKind kind) {
  if (kind == EntryKind::placings) return true;
  return kind == EntryKind::reasons ? classes.hasReasons(classIndex)
                                    : classes.hasQuestions(classIndex);
}

EntryProgress::EntryProgress(const Contest& contest) : cards_(contest) {
  for (const auto& [number, name] : contest.contestantNames) {
    if (name.empty()) continue;
    const bool shown = hasAnything(contest, number);
    (shown ? expected_ : noShows_).push_back({number, &name});
    const char group = groupOfContestant(contest, number);
    const auto position = std::lower_bound(groups_.begin(), groups_.end(), group);
    if (shown && (position == groups_.end() || *position != group)) groups_.insert(position, group);
  }
  expectedByGroup_.resize(groups_.size());
  for (Person& person : expected_) {
    const char group = groupOfContestant(contest, person.number);
    const auto position = std::lower_bound(groups_.begin(), groups_.end(), group);
    person.group = static_cast<std::size_t>(position - groups_.begin());
    ++expectedByGroup_[person.group];
  }
}

std::vector<std::int32_t> EntryProgress::enteredByGroup(std::int32_t classIndex,
                                                        EntryKind kind) const {
  std::vector<std::int32_t> entered(groups_.size());
  auto person = expected_.begin();
  for (const auto& [number, record] : cards_.of(classIndex)) {
    if (!isEntered(*record, kind)) continue;
    person = std::lower_bound(
        person, expected_.end(), number,
        [](const Person& other, ContestantNumber wanted) { return other.number < wanted; });
    ++entered[person->group];
  }
  return entered;
}

std::vector<EntryProgress::Person> EntryProgress::missing(std::int32_t classIndex,
                                                          EntryKind kind) const {
  std::vector<Person> missing;
  const auto cards = cards_.of(classIndex);
  auto card = cards.begin();
  for (const Person& person : expected_) {
    while (card != cards.end() && card->number < person.number) ++card;
    const bool hasCard = card != cards.end() && card->number == person.number;
    if (!hasCard || !isEntered(*card->record, kind)) missing.push_back(person);
  }
  return missing;
}

}  // namespace scorvane
