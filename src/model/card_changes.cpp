#include "model/card_changes.h"

#include <utility>

#include "text/format.h"

namespace scorvane {

namespace {

// The record of a place with the score of another record put in.
ScoreRecord withScoreOf(const Contest& contest, ScoreValue kind, ScoreRecord record,
                        const ScoreRecord& other, std::int32_t classIndex) {
  const JudgingClasses& classes = contest.classes;
  switch (kind) {
    case ScoreValue::letter:
    case ScoreValue::placingScore:
      record.letter = other.letter;
      record.placingScore =
          placingScore(other.letter, classes.official(classIndex), classes.cuts(classIndex));
      break;
    case ScoreValue::reasons:
      record.reasonsScore = other.reasonsScore;
      break;
    case ScoreValue::questions:
      record.questionsScore = other.questionsScore;
      break;
  }
  return record;
}

class Changes {
 public:
  Changes(const Contest& contest, ScoreValue kind) : contest_(contest), kind_(kind) {}

  void put(ContestantNumber number, std::int32_t classIndex, const ScoreRecord& score) {
    const ScoreRecord& before = scoreRecord(contest_, number, classIndex);
    if (!isEntered(kind_, before) && !isEntered(kind_, score)) return;
    changes_.push_back(
        {number, classIndex, before, withScoreOf(contest_, kind_, before, score, classIndex)});
  }
  std::vector<CardChange> take() { return std::move(changes_); }

 private:
  const Contest& contest_;
  ScoreValue kind_;
  std::vector<CardChange> changes_;
};

}  // namespace

std::vector<CardChange> movedCards(const Contest& contest, ScoreValue kind,
                                   const std::vector<ContestantNumber>& contestants,
                                   std::int32_t from, std::int32_t to) {
  Changes changes(contest, kind);
  if (from == to) return {};
  for (const ContestantNumber number : contestants) {
    const ScoreRecord& score = scoreRecord(contest, number, from);
    if (!isEntered(kind, score)) continue;
    changes.put(number, from, {});
    changes.put(number, to, score);
  }
  return changes.take();
}

std::vector<CardChange> exchangedCards(const Contest& contest, ScoreValue kind,
                                       ContestantNumber one, ContestantNumber other,
                                       std::optional<std::int32_t> classIndex) {
  Changes changes(contest, kind);
  for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
    if (classIndex.value_or(k) != k) continue;
    changes.put(one, k, scoreRecord(contest, other, k));
    changes.put(other, k, scoreRecord(contest, one, k));
  }
  return changes.take();
}

std::vector<CardChange> clearedCards(const Contest& contest, ScoreValue kind,
                                     const std::vector<ContestantNumber>& contestants,
                                     std::int32_t classIndex) {
  Changes changes(contest, kind);
  for (const ContestantNumber number : contestants) changes.put(number, classIndex, {});
  return changes.take();
}

void applyCardChanges(Contest& contest, const std::vector<CardChange>& changes) {
  for (const CardChange& change : changes) {
    contest.scores[change.number][change.classIndex] = change.after;
  }
}

bool isTypedOver(ScoreValue kind, const CardChange& change) {
  return isEntered(kind, change.before) && isEntered(kind, change.after);
}

std::string cardChangeLine(const Contest& contest, ScoreValue kind, const CardChange& change) {
  const auto shown = [kind](const ScoreRecord& record) {
    const std::string text = scoreText(kind, record);
    return text.empty() ? std::string("-") : text;
  };
  return formatText("%6d  %-20.20s %3d. %-14.14s  %-11s  %s", change.number,
                    contestantName(contest, change.number).c_str(), change.classIndex + 1,
                    contest.classes.name(change.classIndex).c_str(), shown(change.before).c_str(),
                    shown(change.after).c_str());
}

}  // namespace scorvane
