#include "results/total_summary_report.h"

#include <array>
#include <utility>

#include "results/hand_out.h"
#include "results/total_summary_layout.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

constexpr std::size_t kCoachBesideTeam = 20;

std::string openingText(const Contest& contest) {
  return formatText(
      "Total Summary Report\n\n"
      "PLC = placings, RSN = reasons, QUE = questions.  alt = never in a team total.\n"
      "Team Total = each column's %d best regular members; it need not add up.\n",
      contest.settings.numToScore);
}

void appendLegend(std::string& out, const Contest& contest) {
  appendFormat(out, "\n%5s  %-38.38s  %.30s\n", "Class", "Description", "Category");
  const std::string rule(38, '-');
  appendFormat(out, "%5.5s  %-38.38s  %.30s\n", rule.c_str(), rule.c_str(), rule.c_str());
  const JudgingClasses& classes = contest.classes;
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    appendFormat(out, "%5d  %-38.38s  %.30s\n", k + 1, classes.name(k).c_str(),
                 categoryName(contest, classes.category(k)).c_str());
  }
}

void appendTeam(std::string& out, const SummaryTable& table, const SummaryLayout& layout,
                const SummaryTeam& team) {
  if (team.coach == nullptr) {
    out += "\n     Contestants Without a Team\n";
  } else if (team.coach->size() <= kCoachBesideTeam) {
    appendFormat(out, "\n     Team:  %-30.30s          Coach:  %s\n", team.name->c_str(),
                 team.coach->c_str());
  } else {
    appendFormat(out, "\n     Team:  %.30s\n    Coach:  %.30s\n", team.name->c_str(),
                 team.coach->c_str());
  }
  for (std::size_t band = 0; band < layout.bandCount(); ++band) {
    if (band > 0) out += '\n';
    out += layout.heading(band);
    for (const SummaryRow& row : table.rowsOf(team)) {
      layout.appendMember(out, row);
      layout.appendCells(out, band, table.cells(row.firstCell));
    }
    if (team.coach == nullptr) continue;
    layout.appendLabel(out, "Team Total");
    layout.appendCells(out, band, table.cells(team.firstTotal));
  }
}

std::vector<ScoreStatistics> statisticsOf(const SummaryTable& table) {
  std::vector<ScoreStatistics> statistics(table.columns().count());
  for (const SummaryRow& row : table.rows()) {
    const auto cells = table.cells(row.firstCell);
    for (std::size_t column = 0; column < cells.size(); ++column) {
      statistics[column].add(cells[column]);
    }
  }
  return statistics;
}

struct StatisticsLine {
  const char* label;
  std::int64_t ScoreStatistics::*sum;
  std::int64_t factor;
};

constexpr std::array kStatisticsLines = {
    StatisticsLine{"Average Score", &ScoreStatistics::sum, 1},
    StatisticsLine{"Percent 50s", &ScoreStatistics::at50, 100},
    StatisticsLine{"Percent 45 and above", &ScoreStatistics::from45, 100},
    StatisticsLine{"Percent 40 and above", &ScoreStatistics::from40, 100}};

// They are made for scores of at most 50, so the columns of totals stay blank.
void appendStatistics(std::string& out, const SummaryTable& table, const SummaryLayout& layout) {
  const std::vector<ScoreStatistics> statistics = statisticsOf(table);
  appendFormat(out, "\n     All Contestants:  %d\n", static_cast<int>(table.rows().size()));
  std::array<std::vector<std::int32_t>, kStatisticsLines.size()> lines;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    for (const ScoreStatistics& scores : statistics) {
      lines[i].push_back(static_cast<std::int32_t>(roundedToTwoDigits(
          scores.*kStatisticsLines[i].sum * kStatisticsLines[i].factor, scores.contestants)));
    }
  }
  for (std::size_t band = 0; band < layout.bandCount(); ++band) {
    if (band > 0 && !layout.hasClasses(band)) break;
    if (band > 0) out += '\n';
    out += layout.heading(band);
    for (std::size_t i = 0; i < lines.size(); ++i) {
      layout.appendLabel(out, kStatisticsLines[i].label);
      layout.appendCells(out, band, lines[i], SummaryLayout::Totals::blank);
    }
  }
}

}  // namespace

std::string totalSummaryReport(const Contest& contest) {
  HandOut report(openingText(contest), kLongestReport);
  const std::optional<SummaryTable> table = SummaryTable::of(contest);
  if (!table) return report.take() += "\nThis contest is too large for this report.\n";
  const SummaryLayout layout(*table);
  std::string block;
  appendLegend(block, contest);
  report.beginPage("");
  report.add(std::exchange(block, {}));
  for (const SummaryTeam& team : table->teams()) {
    appendTeam(block, *table, layout, team);
    report.add(std::exchange(block, {}));
    if (report.isTooLong()) return report.take();
  }
  appendStatistics(block, *table, layout);
  report.add(block);
  return report.take();
}

}  // namespace scorvane
