// Small contests for tests, written down in a few lines.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/contest.h"
#include "model/new_contest.h"
#include "model/numbering.h"
#include "model/roster.h"

namespace scorvane {

/// Builds a contest step by step. It starts as a new contest of March 05, 2024 with the category
/// "none"; settings are changed through `contest.settings` before teams are added.
class ContestBuilder {
 public:
  struct Class {
    std::string name = "Angus Heifers";
    bool reasons = false;
    bool questions = false;
    PlacingLetter official = 'A';
    Cuts cuts = {2, 3, 4};
    std::int32_t category = 0;
  };
  struct Scores {
    std::int32_t placing = 0;
    std::int32_t reasons = 0;
    std::int32_t questions = 0;
  };

  ContestBuilder() : contest(newContest()) {
    contest.settings.contestDate = "March 05, 2024";
    contest.categories = {kNoCategory};
    contest.groupLetters = {'A', 'B', 'C', 'D', 'E'};
  }

  ContestBuilder& members(std::int32_t perTeam, std::int32_t totalPerTeam, std::int32_t toScore) {
    contest.settings.numPerTeam = perTeam;
    contest.settings.totalNumPerTeam = totalPerTeam;
    contest.settings.numToScore = toScore;
    return *this;
  }
  ContestBuilder& categories(std::vector<std::string> names) {
    contest.categories = std::move(names);
    return *this;
  }
  ContestBuilder& addClass(const Class& judged) {
    contest.classes.add(judged.name, judged.reasons, judged.questions, judged.official, judged.cuts,
                        judged.category);
    return *this;
  }
  /// Adds a team; its members take the next free numbers. An empty name is a reserved slot.
  ContestBuilder& team(const std::string& name, const std::string& coach,
                       const std::vector<std::string>& members) {
    Team& team = contest.teams[name];
    team.coach = coach;
    for (const std::string& member : members) {
      team.members.push_back(contest.settings.nextContestantNum);
      contestant(member);
    }
    return *this;
  }
  /// A contestant without a team, with the next free number.
  ContestBuilder& contestant(const std::string& name) {
    const ContestantNumber number = contest.settings.nextContestantNum;
    setContestant(contest, number, name);
    contest.reasonsPlace[number] = {};
    updateNextContestant(contest);
    return *this;
  }
  /// Enters a contestant's cards, one letter a class from the first on (' ' = not entered), with
  /// the placing score by the cut rule.
  ContestBuilder& placings(ContestantNumber number, std::string_view letters) {
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
  /// Stores scores as they stand, one triple a class from the first on.
  ContestBuilder& scores(ContestantNumber number, std::initializer_list<Scores> perClass) {
    std::int32_t k = 0;
    for (const auto& [placing, reasons, questions] : perClass) {
      contest.scores[number][k++] = {'A', placing, reasons, questions};
    }
    return *this;
  }

  Contest contest;
};

}  // namespace scorvane
