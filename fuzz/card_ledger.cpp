#include "fuzz/card_ledger.h"

#include <algorithm>
#include <limits>

#include "fuzz/checks.h"
#include "model/contest_differences.h"
#include "model/contest_findings.h"

namespace scorvane {

namespace {

std::int64_t slotsOf(const Contest& contest, ContestantNumber number) {
  std::int64_t slots = 0;
  for (const auto& [name, team] : contest.teams) {
    slots += std::count(team.members.begin(), team.members.end(), number);
  }
  return slots;
}

// Beyond the greatest number the count starts again below 0, where numbers can be given twice.
bool mayGiveNumbersAgain(const Contest& contest) {
  return !contest.contestantNames.empty() &&
         contest.contestantNames.back().first == std::numeric_limits<ContestantNumber>::max();
}

}  // namespace

CardLedger::Cards CardLedger::cardsOf(const Contest& contest, ContestantNumber number) {
  Cards cards;
  const ClassScores* records = contest.scores.find(number);
  if (records == nullptr) return cards;
  for (const auto& [k, record] : *records) {
    if (countEntered(record) == 0) continue;
    cards[k] = record;
    cards[k].placingScore = 0;  // follows the class
  }
  return cards;
}

void CardLedger::takeOver(const Contest& contest) {
  std::erase_if(cards_, [&contest](const auto& entry) {
    return !contest.contestantNames.contains(entry.first) && slotsOf(contest, entry.first) == 0;
  });
  present_.clear();
  for (const auto& [number, name] : contest.contestantNames) {
    present_.insert(number);
    cards_[number] = cardsOf(contest, number);
  }
}

void CardLedger::enter(const Contest& contest) {
  cards_.clear();
  for (const auto& [number, records] : contest.scores) cards_[number] = cardsOf(contest, number);
  takeOver(contest);
}

void CardLedger::watch(const Contest& contest) {
  for (const auto& [number, name] : contest.contestantNames) {
    const Cards now = cardsOf(contest, number);
    const Cards& before = cards_[number];
    const bool isNew = !present_.contains(number) || mayGiveNumbersAgain(contest);
    require(now == before || (isNew && now.empty()),
            isNew ? "whoever comes into the contest has no score of somebody else"
                  : "setup leaves everybody's scores alone");
  }
  takeOver(contest);
}

CardLedger::Scores CardLedger::scores() const {
  Scores scores;
  for (const auto& [number, cards] : cards_) {
    for (const auto& [k, record] : cards) {
      if (isEntered(ScoreValue::letter, record)) ++scores[{0, record.letter}];
      if (record.reasonsScore != 0) ++scores[{1, record.reasonsScore}];
      if (record.questionsScore != 0) ++scores[{2, record.questionsScore}];
    }
  }
  return scores;
}

void CardLedger::move(const Contest& contest) {
  const std::map<ContestantNumber, Cards> cardsBefore = cards_;
  const Scores before = scores();
  enter(contest);
  for (const auto& [score, count] : scores()) {
    const auto found = before.find(score);
    require(found != before.end() && count <= found->second, "a moved score was there before");
  }
  for (const auto& [number, cards] : cards_) {
    const auto found = cardsBefore.find(number);
    const bool isAsBefore = found == cardsBefore.end() ? cards.empty() : cards == found->second;
    require(isAsBefore || present_.contains(number), "only contestants' scores are moved");
  }
}

void CardLedger::checkFindings(const Contest& contest) const {
  std::set<ContestantNumber> shared;
  std::set<ContestantNumber> nameless;
  std::set<std::int32_t> withoutClass;
  for (const auto& [number, cards] : cards_) {
    if (present_.contains(number) && slotsOf(contest, number) > 1) shared.insert(number);
    if (!cards.empty() && contestantName(contest, number).empty()) nameless.insert(number);
    for (const auto& [k, record] : cards) {
      if (present_.contains(number) && k >= contest.classes.count()) withoutClass.insert(k);
    }
  }
  for (const Finding& finding : contestFindings(contest)) {
    const bool isTrue = finding.kind == FindingKind::numberInTwoTeams ? shared.erase(finding.number)
                        : finding.kind == FindingKind::scoresWithoutName
                            ? nameless.erase(finding.number)
                            : withoutClass.erase(finding.classIndex);
    require(isTrue, "what is found is so, and is told once");
  }
  require(shared.empty(), "a score counts for one team, or it is told");
  require(nameless.empty(), "a score is somebody's, or it is told");
  require(withoutClass.empty(), "a score is for a class, or it is told");
}

}  // namespace scorvane
