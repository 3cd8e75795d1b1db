#include "reports/round_reports.h"

#include <algorithm>

#include "model/group_rotation.h"
#include "model/numbering.h"
#include "reports/report_parts.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

// With more groups than classes, one line that says so: the other groups judge nowhere.
void appendIdleGroups(std::string& out, const Contest& contest, const char* consequence) {
  const Rotation rotation = rotationOf(contest);
  const std::int32_t groups = letteredGroups(contest.settings.numGroups);
  if (rotation.rounds() == 0 || groups == rotation.judgingGroups()) return;
  appendFormat(out, "More groups than classes: groups from %c on judge none%s.\n",
               letterOfGroup(rotation.judgingGroups()), consequence);
}

void appendRoundHeading(std::string& out, std::int32_t rounds) {
  appendFormat(out, "  %5.5s %-50.50s   Round\n", "Class", " ");
  appendFormat(out, "  %5.5s %-50.50s ", " No. ", "     Description");
  for (std::int32_t round = 1; round <= rounds; ++round) appendFormat(out, " | %2d", round);
  out += " |\n";
}

void appendRoundRule(std::string& out, const char* number, const char* description,
                     std::int32_t rounds) {
  appendFormat(out, "  %5.5s %-50.50s  ", number, description);
  for (std::int32_t round = 0; round < rounds; ++round) out += "-----";
  out += "|\n";
}

// Lays the numbers from startNum to the highest one out in rows of one cell a group.
// `appendCell(number, isNamed)` appends a cell.
//
// A contest file can put startNum billions below its contestants. Then rows without any
// contestant are left out, one line for each stretch, so that the work follows the contestants.
class NumberGrid {
 public:
  NumberGrid(const Contest& contest, const char* lineEnd)
      : contest_(contest),
        lineEnd_(lineEnd),
        columns_(std::max(letteredGroups(contest.settings.numGroups), 1)) {}

  template <typename AppendCell>
  void appendTo(std::string& out, AppendCell appendCell) {
    const auto& names = contest_.contestantNames;
    const std::int64_t first = contest_.settings.startNum;
    const std::int64_t last = names.empty() ? first - 1 : names.back().first;
    const bool leavesOut = last - first >= kMostNumbers;
    next_ = names.lowerBound(contest_.settings.startNum);
    std::int32_t column = 0;
    for (std::int64_t number = first; number <= last; ++number) {
      if (column == 0 && closeIfTooLong(out)) return;
      if (column == 0 && leavesOut) {
        number += appendLeftOut(out, number, last);
      }
      appendCell(static_cast<ContestantNumber>(number), isNamed(number));
      if (++column == columns_) {
        out += lineEnd_;
        column = 0;
      }
    }
  }

 private:
  // Far more numbers than a contest has; up to here every one is shown.
  static constexpr std::int64_t kMostNumbers = 1'000'000;

  // How many numbers from the row starting at `number` on are left out; below `last` - `number`.
  std::int64_t appendLeftOut(std::string& out, std::int64_t number, std::int64_t last) {
    const auto& names = contest_.contestantNames;
    while (next_ != names.end() && (next_->first < number || next_->second.empty())) ++next_;
    const std::int64_t upTo = next_ != names.end() ? next_->first : last;
    const std::int64_t leftOut = (upTo - number) / columns_ * columns_;
    if (leftOut > 0) {
      appendFormat(out, "(%lld numbers without a contestant)%s", static_cast<long long>(leftOut),
                   lineEnd_);
    }
    return leftOut;
  }

  // Numbers are asked for in ascending order.
  bool isNamed(std::int64_t number) {
    const auto& names = contest_.contestantNames;
    while (next_ != names.end() && next_->first < number) ++next_;
    return next_ != names.end() && next_->first == number && !next_->second.empty();
  }

  const Contest& contest_;
  const char* lineEnd_;
  std::int32_t columns_;
  FlatMap<ContestantNumber, std::string>::const_iterator next_;
};

}  // namespace

std::string roundAssignmentsReport(const Contest& contest) {
  const JudgingClasses& classes = contest.classes;
  const Rotation rotation = rotationOf(contest);
  const std::int32_t rounds = rotation.rounds();
  std::string out = "Round Assignments Report\n\n";
  appendRoundHeading(out, rounds);
  appendRoundRule(out, "-----", kFiftyHyphens, rounds);
  std::string cells;
  for (std::int32_t k = 0; k < classes.count() && !closeIfTooLong(out); ++k) {
    cells.clear();
    for (std::int32_t round = 0; round < rounds; ++round) {
      appendFormat(cells, "|  %c ", rotation.groupAt(k, round));
    }
    appendFormat(out, "  %3d   %-38.38s %s  %s|\n", k + 1, classes.name(k).c_str(),
                 kindTag(classes, k), cells.c_str());
    if ((k + 1) % 3 == 0) appendRoundRule(out, " ", " ", rounds);
  }
  appendIdleGroups(out, contest, "");
  return out;
}

std::string groupAssignmentsReport(const Contest& contest) {
  const std::int32_t groups = letteredGroups(contest.settings.numGroups);
  std::string out = formatText("%30.30s\n\n\t", "Group Assignments");
  for (std::int32_t k = 0; k < groups; ++k) appendFormat(out, "   %-3c  ", letterOfGroup(k));
  out += "\n\t";
  for (std::int32_t k = 0; k < groups; ++k) appendFormat(out, "%7.7s ", "-------");
  out += "\n\t";
  NumberGrid(contest, "\n\t").appendTo(out, [&](ContestantNumber number, bool isNamed) {
    if (isNamed) {
      appendFormat(out, "%5d   ", number);
    } else {
      out += "  ---   ";
    }
  });
  out += "\n";
  return out;
}

std::string roundVerificationReport(const Contest& contest, std::int32_t round) {
  const Rotation rotation = rotationOf(contest);
  const std::int32_t groups = letteredGroups(contest.settings.numGroups);
  std::string out =
      formatText("Round %lld Verification Report\n\n", static_cast<long long>(round) + 1);
  for (std::int32_t k = 0; k < groups; ++k) {
    const auto index = static_cast<std::size_t>(k);
    // A contest that was never loaded nor set up has no list of letters yet.
    const bool isListed = index < contest.groupLetters.size();
    const char letter = isListed ? contest.groupLetters[index] : letterOfGroup(k);
    appendFormat(out, "    %c    |", letter);
  }
  out += "\n";
  for (std::int32_t k = 0; k < groups; ++k) out += "---------|";
  out += "\n";
  NumberGrid(contest, "\n").appendTo(out, [&](ContestantNumber number, bool isNamed) {
    if (!isNamed) {
      out += "   --- - |";
      return;
    }
    const char group = groupOfContestant(contest, number);
    // Odd but required, docs/required-behaviour.md: idle-group-shows-first-class
    const std::int32_t classIndex = rotation.classOf(group, round).value_or(0);
    appendFormat(out, "  %4d-%c |", number, scoreRecord(contest, number, classIndex).letter);
  });
  out += "\n";
  appendIdleGroups(out, contest, "; the letters shown for them are those of class 1");
  return out;
}

}  // namespace scorvane
