#include "reports/verification_reports.h"

#include <cstdint>
#include <vector>

#include "model/class_lists.h"
#include "model/numbering.h"
#include "model/placing.h"
#include "model/record_cursor.h"
#include "reports/report_parts.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

// A line of fixedPart + perClass * (number of all classes) hyphens.
std::string makeRule(const JudgingClasses& classes, std::size_t fixedPart, std::size_t perClass) {
  std::string rule(fixedPart + perClass * static_cast<std::size_t>(classes.count()), '-');
  return rule += '\n';
}

// Appends " | %2d " with the number of each class, counted from 1.
void appendClassNumbers(std::string& out, const std::vector<std::int32_t>& classes) {
  for (const std::int32_t k : classes) appendFormat(out, " | %2d ", k + 1);
}

// Appends number and name in 26 characters: the name cut to 20, an alternate's to 16 and marked.
void appendMember(std::string& out, const ListedMember& member) {
  const auto& [number, name, scores] = member.contestant;
  if (member.isAlternate) {
    appendFormat(out, "%5d %-16.16s alt", number, name->c_str());
  } else {
    appendFormat(out, "%5d %-20.20s", number, name->c_str());
  }
}

using Block = std::vector<ListedContestant>;

// The contestants of each group, sorted out in one pass.
std::vector<Block> blocksByGroup(const Contest& contest) {
  const std::int32_t groups = letteredGroups(contest.settings.numGroups);
  std::vector<Block> blocks(static_cast<std::size_t>(groups));
  for (const ListedContestant& listed : listedContestants(contest)) {
    const std::int32_t group = groupOfLetter(groupOfContestant(contest, listed.number));
    if (group >= 0 && group < groups) blocks[static_cast<std::size_t>(group)].push_back(listed);
  }
  return blocks;
}

void appendLetters(std::string& out, const ListedContestant& listed, char group,
                   std::int32_t classCount) {
  appendFormat(out, "%5d-%c %-20.20s", listed.number, group, listed.name->c_str());
  RecordCursor records(listed.scores);
  for (std::int32_t k = 0; k < classCount; ++k) appendFormat(out, " |  %c ", records.at(k).letter);
  out += "\n";
}

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

void appendReasonsAndTotal(std::string& out, const ListedMember& member,
                           const JudgingClasses& classes) {
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

struct Grid {
  const char* title;
  std::vector<std::int32_t> columns;  ///< class indexes
  std::size_t rulePerClass;
  bool listsAll = false;
};

// Builds a grid. `appendCell(line, record)` appends the cell of one class and says whether it
// shows a zero; contestants without any are left out unless the grid lists all.
template <typename AppendCell>
std::string buildGrid(const Contest& contest, const Grid& grid, AppendCell appendCell) {
  // Odd but required, docs/required-behaviour.md: rules-count-all-classes
  const std::string rule = makeRule(contest.classes, 26, grid.rulePerClass);
  std::string out = grid.title;
  appendFormat(out, "%26.26s", "");
  appendClassNumbers(out, grid.columns);
  out += "\n" + rule;

  std::int32_t listed = 0;
  std::string line;
  for (const auto& [number, name, scores] : listedContestants(contest)) {
    line.clear();
    appendFormat(line, "%5d %-20.20s", number, name->c_str());
    RecordCursor records(scores);
    bool isListed = grid.listsAll;
    for (const std::int32_t k : grid.columns) {
      if (appendCell(line, records.at(k))) isListed = true;
    }
    if (!isListed) continue;
    if (closeIfTooLong(out)) return out;
    out += line += "\n";
    if (++listed % 5 == 0) out += rule;
  }
  return out;
}

bool appendReasons(std::string& line, const ScoreRecord& record) {
  appendFormat(line, " | %2d ", record.reasonsScore);
  return record.reasonsScore == 0;
}

bool appendQuestions(std::string& line, const ScoreRecord& record) {
  appendFormat(line, " | %2d ", record.questionsScore);
  return record.questionsScore == 0;
}

bool appendLetterOrZero(std::string& line, const ScoreRecord& record) {
  if (record.placingScore == 0) {
    line += " | -@-";
    return true;
  }
  appendFormat(line, " |  %c ", record.letter);
  return false;
}

}  // namespace

std::string verifyScoresReport(const Contest& contest) {
  const JudgingClasses& classes = contest.classes;
  const std::string rule = makeRule(classes, 28, 6);
  std::string out = "Verify Scores Report\n\n";
  appendFormat(out, "%28.28s", "");
  appendClassNumbers(out, allClasses(classes));
  out += "\n" + rule;
  std::int32_t group = 0;
  for (const Block& block : blocksByGroup(contest)) {
    const char letter = letterOfGroup(group++);
    for (const ListedContestant& listed : block) {
      if (closeIfTooLong(out)) return out;
      appendLetters(out, listed, letter, classes.count());
    }
    out += rule;
  }
  return out;
}

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
                     makeReasonsHeading(contest.classes), appendTeam, appendReasonsAndTotal);
}

std::string zeroScoresReport(const Contest& contest) {
  return buildGrid(contest, {"Zero Scores Report\n\n", allClasses(contest.classes), 6},
                   appendLetterOrZero);
}

std::string zeroReasonsReport(const Contest& contest) {
  return buildGrid(contest, {"Zero Reasons Report\n\n", reasonsClasses(contest.classes), 5},
                   appendReasons);
}

std::string zeroQuestionsReport(const Contest& contest) {
  return buildGrid(contest, {"Zero Questions Report\n\n", questionsClasses(contest.classes), 5},
                   appendQuestions);
}

std::string verifyQuestionsScoresReport(const Contest& contest) {
  return buildGrid(
      contest, {"Verify Questions Scores Report\n\n", questionsClasses(contest.classes), 5, true},
      appendQuestions);
}

}  // namespace scorvane
