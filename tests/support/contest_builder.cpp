#include "tests/support/contest_builder.h"

#include <utility>

#include "model/new_contest.h"
#include "model/numbering.h"

ContestBuilder::ContestBuilder() : contest(newContest()) {
  contest.settings.contestDate = "March 05, 2024";
  contest.categories = {kNoCategory};
  contest.groupLetters = {'A', 'B', 'C', 'D', 'E'};
}

ContestBuilder& ContestBuilder::members(std::int32_t perTeam, std::int32_t totalPerTeam,
                                        std::int32_t toScore) {
  contest.settings.numPerTeam = perTeam;
  contest.settings.totalNumPerTeam = totalPerTeam;
  contest.settings.numToScore = toScore;
  return *this;
}

ContestBuilder& ContestBuilder::categories(std::vector<std::string> names) {
  contest.categories = std::move(names);
  return *this;
}

ContestBuilder& ContestBuilder::addClass(const Class& judged) {
  contest.classes.add(judged.name, judged.reasons, judged.questions, judged.official, judged.cuts,
                      judged.category);
  return *this;
}

ContestBuilder& ContestBuilder::team(const std::string& name, const std::string& coach,
                                     const std::vector<std::string>& members) {
  Team& team = contest.teams[name];
  team.coach = coach;
  for (const std::string& member : members) {
    team.members.push_back(contest.settings.nextContestantNum);
    contestant(member);
  }
  return *this;
}

ContestBuilder& ContestBuilder::contestant(const std::string& name) {
  const ContestantNumber number = contest.settings.nextContestantNum;
  contest.contestantNames[number] = name;
  contest.contestantGroup[number] = groupOfNumber(contest.settings, number);
  contest.reasonsPlace[number] = {};
  updateNextContestant(contest);
  return *this;
}

ContestBuilder& ContestBuilder::placings(ContestantNumber number, std::string_view letters) {
  std::int32_t k = 0;
  for (const char letter : letters) {
    ScoreRecord& record = contest.scores[number][k];
    record.letter = letter;
    record.placingScore =
        placingScore(letter, contest.classes.official(k), contest.classes.cuts(k));
    ++k;
  }
  return *this;
}

ContestBuilder& ContestBuilder::scores(ContestantNumber number,
                                       std::initializer_list<Scores> perClass) {
  std::int32_t k = 0;
  for (const Scores& entered : perClass) {
    contest.scores[number][k] = {'A', entered.placing, entered.reasons, entered.questions};
    ++k;
  }
  return *this;
}
