#include "model/bring_in_scores.h"

#include <utility>

namespace scorvane {

namespace {

class BringingIn {
 public:
  BringingIn(const Contest& here, const Contest& there) : there_(there) { found_.contest = here; }

  BroughtScores run() {
    matchClassesByName();
    matchPeople();
    sortAsCardsLie(found_.contest, found_.broughtIn);
    sortAsCardsLie(found_.contest, found_.differing);
    sortAsCardsLie(found_.contest, found_.leftOut);
    return std::move(found_);
  }

 private:
  void matchClassesByName() {
    const JudgingClasses& here = found_.contest.classes;
    for (const ClassMatch& match : matchNames(here.className, there_.classes.className, false)) {
      if (match.here && match.there) classes_.push_back(match);
      if (!match.there) found_.classes.here.push_back(here.name(*match.here));
      if (!match.here) found_.classes.there.push_back(there_.classes.name(*match.there));
    }
  }

  void matchPeople() {
    const auto text = [](const auto& entry) {
      return std::to_string(entry.first) + ' ' + entry.second;
    };
    for (const auto& entry : there_.contestantNames) {
      if (contestantName(found_.contest, entry.first) == entry.second) continue;
      if (!entry.second.empty()) found_.people.there.push_back(text(entry));
    }
    for (const auto& entry : found_.contest.contestantNames) {
      if (contestantName(there_, entry.first) != entry.second) {
        if (!entry.second.empty()) found_.people.here.push_back(text(entry));
      } else if (!entry.second.empty()) {
        for (const ClassMatch& match : classes_) bringIn(entry.first, *match.here, *match.there);
      }
    }
  }

  void bringIn(ContestantNumber number, std::int32_t here, std::int32_t there) {
    const ScoreRecord before = scoreRecord(found_.contest, number, here);
    const ScoreRecord& other = scoreRecord(there_, number, there);
    ScoreRecord record = before;
    const JudgingClasses& classes = found_.contest.classes;
    const auto take = [&](ScoreValue value, bool isCarried, auto ScoreRecord::*score) {
      if (!isEntered(value, other) || before.*score == other.*score) return;
      const bool isMissing = !isEntered(value, before);
      const bool isTaken = isMissing && isCarried;
      if (isTaken) record.*score = other.*score;
      (isTaken     ? found_.broughtIn
       : isMissing ? found_.leftOut
                   : found_.differing)
          .push_back({here, value, number, {before, other}});
    };
    take(ScoreValue::letter, true, &ScoreRecord::letter);
    take(ScoreValue::reasons, classes.hasReasons(here), &ScoreRecord::reasonsScore);
    take(ScoreValue::questions, classes.hasQuestions(here), &ScoreRecord::questionsScore);
    if (record == before) return;
    record.placingScore = placingScore(record.letter, classes.official(here), classes.cuts(here));
    found_.contest.scores[number][here] = record;
  }

  const Contest& there_;
  BroughtScores found_;
  std::vector<ClassMatch> classes_;
};

}  // namespace

BroughtScores bringInScores(const Contest& here, const Contest& there) {
  return BringingIn(here, there).run();
}

}  // namespace scorvane
