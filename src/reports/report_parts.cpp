#include "reports/report_parts.h"

#include "text/format.h"

namespace scorvane {

namespace {

const ClassScores kNoScores;

}  // namespace

const char* kindTag(const JudgingClasses& classes, std::int32_t classIndex) {
  const bool questions = classes.hasQuestions(classIndex);
  if (classes.hasReasons(classIndex)) return questions ? " (Rsn/Qst) " : " (Reasons) ";
  return questions ? "(Questions)" : "           ";
}

std::string makeRule(const JudgingClasses& classes, std::size_t fixedPart, std::size_t perClass) {
  std::string rule(fixedPart + perClass * static_cast<std::size_t>(classes.count()), '-');
  return rule += '\n';
}

void appendClassNumbers(std::string& out, const std::vector<std::int32_t>& classes) {
  for (const std::int32_t k : classes) appendFormat(out, " | %2d ", k + 1);
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

void appendMember(std::string& out, const ListedMember& member) {
  const auto& [number, name, scores] = member.contestant;
  if (member.isAlternate) {
    appendFormat(out, "%5d %-16.16s alt", number, name->c_str());
  } else {
    appendFormat(out, "%5d %-20.20s", number, name->c_str());
  }
}

RecordCursor::RecordCursor(const ClassScores* scores)
    : next_((scores == nullptr ? kNoScores : *scores).begin()),
      end_((scores == nullptr ? kNoScores : *scores).end()) {}

const ScoreRecord& RecordCursor::at(std::int32_t classIndex) {
  static const ScoreRecord blank;
  while (next_ != end_ && next_->first < classIndex) ++next_;
  return next_ != end_ && next_->first == classIndex ? next_->second : blank;
}

}  // namespace scorvane
