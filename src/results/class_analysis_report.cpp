#include "results/class_analysis_report.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "model/class_statistics.h"
#include "results/hand_out.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

constexpr std::size_t kColumns = 3;

std::string averageText(const ScoreSum& scores) {
  const auto tenths = static_cast<long long>(scores.averageInTenths());
  return formatText("%s%lld.%lld", tenths < 0 ? "-" : "", std::abs(tenths) / 10,
                    std::abs(tenths) % 10);
}

void appendAverage(std::string& out, const char* kind, const ScoreSum& scores) {
  if (scores.count == 0) {
    appendFormat(out, "    %s: none entered\n", kind);
  } else {
    appendFormat(out, "    %s: %d entered, average %s\n", kind, scores.count,
                 averageText(scores).c_str());
  }
}

void appendGiven(std::string& out, const std::vector<GivenPlacing>& given) {
  if (given.empty()) return;
  out += '\n';
  for (std::size_t i = 0; i < std::min(given.size(), kColumns); ++i) {
    out += "    Placing  Cards  Score";
  }
  for (std::size_t i = 0; i < given.size(); ++i) {
    if (i % kColumns == 0) out += '\n';
    appendFormat(out, "    %-6s  %6d %6d", placingText(given[i].letter).c_str(), given[i].count,
                 given[i].score);
  }
  out += '\n';
}

void appendPairs(std::string& out, const ClassStatistics& statistics) {
  if (statistics.pairs.empty() || statistics.placed == 0) return;
  constexpr std::string_view kStart = "    Right: ";
  out.append("\n").append(kStart);
  std::size_t width = kStart.size();
  for (const auto& [first, second, right] : statistics.pairs) {
    const std::string pair =
        formatText(" %d over %d: %d of %d", first, second, right, statistics.placed);
    // So many cards that three do not fit.
    if (width + 2 + pair.size() > kWidestLine) {
      out.append("\n").append(kStart.size(), ' ');
      width = kStart.size();
    }
    const std::string_view gap = width == kStart.size() ? "" : "  ";
    out.append(gap).append(pair);
    width += gap.size() + pair.size();
  }
  out += '\n';
}

std::string classBlock(const JudgingClasses& classes, const ClassStatistics& statistics) {
  const std::int32_t k = statistics.classIndex;
  const PlacingLetter official = classes.official(k);
  std::string out =
      formatText("%2d. %.70s\n    Official %s   Cuts %s\n", k + 1, classes.name(k).c_str(),
                 placingText(official).c_str(), cutsText(classes.cuts(k)).c_str());
  const ScoreSum& placings = statistics.placings;
  if (placings.count == 0) {
    out += "    No cards are in.\n";
  } else {
    appendFormat(out, "    %d cards, average %s, highest %d, lowest %d, %d perfect\n",
                 placings.count, averageText(placings).c_str(), statistics.highest,
                 statistics.lowest, statistics.perfect);
  }
  if (classes.hasReasons(k)) appendAverage(out, "Reasons", statistics.reasons);
  if (classes.hasQuestions(k)) appendAverage(out, "Questions", statistics.questions);
  appendGiven(out, statistics.given);
  appendPairs(out, statistics);
  if (const auto likelier = likelierPlacing(statistics, official, classes.cuts(k))) {
    appendFormat(out,
                 "\n    Is the official placing mistyped?  %d of %d cards would score higher\n"
                 "    under %s.\n",
                 likelier->better, statistics.placed, placingText(likelier->letter).c_str());
  }
  return out += "\n\n";
}

}  // namespace

std::string classAnalysisReport(const Contest& contest) {
  HandOut report(
      "Class Analysis\n\n"
      "A zero card (Z) is a card with score 0; the pairs leave it out.\n\n");
  const CardsByClass cards(contest);
  report.beginPage("");
  for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
    report.add(classBlock(contest.classes, cards.statistics(k)));
    if (report.isTooLong()) break;
  }
  return report.take();
}

}  // namespace scorvane
