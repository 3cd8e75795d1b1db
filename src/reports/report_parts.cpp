#include "reports/report_parts.h"

#include <array>
#include <cstddef>

namespace scorvane {

const char* kindTag(const JudgingClasses& classes, std::int32_t classIndex) {
  const bool questions = classes.hasQuestions(classIndex);
  if (classes.hasReasons(classIndex)) return questions ? " (Rsn/Qst) " : " (Reasons) ";
  return questions ? "(Questions)" : "           ";
}

const char* scoreWord(ScoreValue value) {
  constexpr std::array kWords = {"Placing", "Reasons", "Questions", "Placing score"};
  return kWords.at(static_cast<std::size_t>(value));
}

std::string orHyphen(const std::string& text) {
  return text.empty() ? "-" : text;
}

std::vector<ListedContestant> listedContestants(const Contest& contest) {
  std::vector<ListedContestant> listed;
  listed.reserve(contest.contestantNames.size());
  auto scores = contest.scores.begin();
  for (const auto& [number, name] : contest.contestantNames) {
    if (name.empty()) continue;
    while (scores != contest.scores.end() && scores->first < number) ++scores;
    const bool hasScores = scores != contest.scores.end() && scores->first == number;
    listed.push_back({number, &name, hasScores ? &scores->second : nullptr});
  }
  return listed;
}

std::vector<ListedMember> listedMembers(const Contest& contest, const Team& team) {
  std::vector<ListedMember> listed;
  std::int32_t slot = 0;
  for (const ContestantNumber number : team.members) {
    const std::string& name = contestantName(contest, number);
    const bool isAlternate = slot >= contest.settings.numPerTeam;
    if (!name.empty())
      listed.push_back({{number, &name, contest.scores.find(number)}, isAlternate});
    ++slot;
  }
  return listed;
}

}  // namespace scorvane
