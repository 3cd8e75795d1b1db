#include "reports/letter_report.h"

#include <vector>

#include "model/numbering.h"
#include "reports/report_parts.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

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

}  // namespace scorvane
