#include "reports/merge_report.h"

#include <cstddef>

#include "reports/report_parts.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

void appendCount(std::string& out, std::size_t count, const char* what) {
  appendFormat(out, "%8zu  %s\n", count, what);
}

void appendHeading(std::string& out, const char* heading) {
  appendFormat(out, "\n%s\n%s\n", heading, std::string(80, '-').c_str());
}

void appendLines(std::string& out, const char* heading, const std::vector<std::string>& lines) {
  if (lines.empty()) return;
  appendHeading(out, heading);
  for (const std::string& line : lines) {
    if (closeIfTooLong(out)) return;
    appendFormat(out, "%.80s\n", line.c_str());
  }
}

// Class by class, in the order in which the cards lie.
void appendScores(std::string& out, const char* heading, const Contest& contest,
                  const std::vector<ContestantScore>& scores, const Sides<const char*>& sides) {
  constexpr const char* kRow = "%5s %-35.35s %-10.10s %-13.13s %.13s\n";
  std::int32_t shownClass = -1;
  for (const ContestantScore& score : scores) {
    if (closeIfTooLong(out)) return;
    if (shownClass != score.classIndex) {
      shownClass = score.classIndex;
      appendFormat(out, "\n%s, class %d: %.50s\n", heading, shownClass + 1,
                   contest.classes.name(shownClass).c_str());
      appendFormat(out, kRow, "", "", "Score", sides.here, sides.there);
      out += std::string(80, '-') + '\n';
    }
    appendFormat(out, kRow, std::to_string(score.number).c_str(),
                 contestantName(contest, score.number).c_str(), scoreWord(score.value),
                 orHyphen(scoreText(score.value, score.records.here)).c_str(),
                 orHyphen(scoreText(score.value, score.records.there)).c_str());
  }
}

void appendValues(std::string& out, const std::vector<Difference>& values) {
  constexpr const char* kRow = "%-36.36s %-21.21s %.21s\n";
  if (values.empty()) return;
  out += '\n';
  appendFormat(out, kRow, "Values that differ; ours stay", "Ours", "Theirs");
  out += std::string(80, '-') + '\n';
  for (const Difference& value : values) {
    if (closeIfTooLong(out)) return;
    const std::string what =
        value.subject.empty() ? value.value : value.subject + ' ' + value.value;
    appendFormat(out, kRow, what.c_str(), orHyphen(value.sides.here).c_str(),
                 orHyphen(value.sides.there).c_str());
  }
}

}  // namespace

std::string mergeReport(const Merge& merge) {
  std::string out = "Two sides of the contest were joined\n\n";
  appendCount(out, merge.values.size() + merge.scores.size(), "values differ; ours stay");
  appendCount(out, merge.lostRemovals.size(), "removals lost against changes");
  appendCount(out, merge.numbers.size(), "contestants have other numbers now");
  appendValues(out, merge.values);
  appendScores(out, "Differing", merge.contest, merge.scores, {"Ours", "Theirs"});
  std::vector<std::string> lost;
  for (const LostRemoval& removal : merge.lostRemovals) {
    lost.push_back(removal.subject + (removal.removedHere ? ", removed by us and changed by them"
                                                          : ", removed by them and changed by us"));
  }
  appendLines(out, "Removed on one side and changed on the other, so still there", lost);
  appendLines(out, "Other numbers than on the cards", numberChangeLines(merge.numbers));
  return out;
}

std::string broughtScoresReport(const BroughtScores& brought) {
  std::string out = "Scores brought in from another file\n\n";
  appendCount(out, brought.broughtIn.size(), "scores brought in");
  appendCount(out, brought.differing.size(), "scores differ; ours stay");
  appendCount(out, brought.people.here.size() + brought.people.there.size(),
              "contestants left out");
  appendCount(out, brought.classes.here.size() + brought.classes.there.size(), "classes left out");
  const Contest& contest = brought.contest;
  appendScores(out, "Brought in", contest, brought.broughtIn, {"Before", "Now"});
  appendScores(out, "Differing", contest, brought.differing, {"Here", "There"});
  appendLines(out, "Contestants only here", brought.people.here);
  appendLines(out, "Contestants only there", brought.people.there);
  appendLines(out, "Classes only here", brought.classes.here);
  appendLines(out, "Classes only there", brought.classes.there);
  return out;
}

}  // namespace scorvane
