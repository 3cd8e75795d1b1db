#include "reports/team_score_reports.h"

#include <vector>

#include "model/placing.h"
#include "reports/report_parts.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

// The three heading lines over a team's placings: the same for every team.
std::string makePlacingsHeading(const JudgingClasses& classes) {
  std::string out = formatText("%20.20s%6.6s", "", "Class ");
  for (std::int32_t k = 0; k < classes.count(); ++k) appendFormat(out, " | %4d  ", k + 1);
  appendFormat(out, "\n%11.11s%15.15s", "", "Official Score ");
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    const auto order = orderOfLetter(classes.official(k));
    appendFormat(out, " | %c %d%d%d%d", classes.official(k), order[0], order[1], order[2],
                 order[3]);
  }
  appendFormat(out, "\n%21.21s%5.5s", "", "Cuts ");
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    const auto [cut1, cut2, cut3] = classes.cuts(k);
    appendFormat(out, " |  %d-%d-%d", cut1, cut2, cut3);
  }
  return out + "\n" + makeRule(classes, 26, 9);
}

void appendPlacings(std::string& out, const ListedMember& member, const JudgingClasses& classes) {
  appendMember(out, member);
  RecordCursor records(member.contestant.scores);
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    const ScoreRecord& record = records.at(k);
    const auto order = orderOfLetter(record.letter);
    appendFormat(out, " |%2d %d%d%d%d", record.placingScore, order[0], order[1], order[2],
                 order[3]);
  }
  out += "\n";
}

std::string makeReasonsHeading(const JudgingClasses& classes) {
  std::string out = formatText("%20.20s%5.5s ", "", "Class");
  for (const std::int32_t k : reasonsClasses(classes)) appendFormat(out, " | %2d", k + 1);
  return out + " | Total\n" + makeRule(classes, 26, 9);
}

void appendReasons(std::string& out, const ListedMember& member, const JudgingClasses& classes) {
  appendMember(out, member);
  RecordCursor records(member.contestant.scores);
  long long total = 0;
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    const std::int32_t score = records.at(k).reasonsScore;
    total += score;
    if (classes.hasReasons(k)) appendFormat(out, " | %2d", score);
  }
  appendFormat(out, " | %2lld\n", total);
}

// Builds a report team by team: the team's own line, the heading, a line a member.
template <typename AppendTeam, typename AppendScores>
std::string buildByTeam(const Contest& contest, std::string out, const std::string& heading,
                        AppendTeam appendTeam, AppendScores appendScores) {
  for (const auto& [teamName, team] : contest.teams) {
    if (closeIfTooLong(out)) return out;
    appendTeam(out, teamName.c_str(), team.coach.c_str());
    out += heading;
    for (const ListedMember& member : listedMembers(contest, team)) {
      if (closeIfTooLong(out)) return out;
      appendScores(out, member, contest.classes);
    }
    out += "\n\n";
  }
  return out;
}

}  // namespace

std::string verifyPlacingsReport(const Contest& contest) {
  const auto appendTeam = [](std::string& out, const char* name, const char* coach) {
    appendFormat(out, "\n     Team:  %-30.30s          Coach:  %s\n", name, coach);
  };
  return buildByTeam(contest, "Verify Placings Report\n\n\n", makePlacingsHeading(contest.classes),
                     appendTeam, appendPlacings);
}

std::string reasonsByTeamReport(const Contest& contest) {
  const auto appendTeam = [](std::string& out, const char* name, const char* coach) {
    appendFormat(out, "\n     Team:  %-25.25s      Coach:  %s\n", name, coach);
  };
  return buildByTeam(contest, "Reasons Scores By Team Report\n\n",
                     makeReasonsHeading(contest.classes), appendTeam, appendReasons);
}

}  // namespace scorvane
