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
    return exists && std::any_of(kEnteredValues.begin(), kEnteredValues.end(),
                                 [&](ScoreValue kind) { return isEntered(kind, entry.second); });
  });
}

}  // namespace

bool isAsked(const JudgingClasses& classes, std::int32_t classIndex, ScoreValue kind) {
  if (kind == ScoreValue::letter) return true;
  return kind == ScoreValue::reasons ? classes.hasReasons(classIndex)
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
                                                        ScoreValue kind) const {
  std::vector<std::int32_t> entered(groups_.size());
  auto person = expected_.begin();
  for (const auto& [number, record] : cards_.of(classIndex)) {
    if (!isEntered(kind, *record)) continue;
    person = std::lower_bound(
        person, expected_.end(), number,
        [](const Person& other, ContestantNumber wanted) { return other.number < wanted; });
    ++entered[person->group];
  }
  return entered;
}

std::vector<EntryProgress::Person> EntryProgress::missing(std::int32_t classIndex,
                                                          ScoreValue kind) const {
  std::vector<Person> missing;
  const auto cards = cards_.of(classIndex);
  auto card = cards.begin();
  for (const Person& person : expected_) {
    while (card != cards.end() && card->number < person.number) ++card;
    const bool hasCard = card != cards.end() && card->number == person.number;
    if (!hasCard || !isEntered(kind, *card->record)) missing.push_back(person);
  }
  return missing;
}

}  // namespace scorvane
