#include "reports/zero_reports.h"

#include <vector>

#include "reports/report_parts.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

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
  // The length counts all classes, not only the columns shown; that is deliberate.
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
