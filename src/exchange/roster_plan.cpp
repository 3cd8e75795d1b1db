#include "exchange/roster_plan.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <span>
#include <utility>

#include "exchange/roster_columns.h"
#include "exchange/roster_names.h"
#include "exchange/roster_planner.h"
#include "exchange/sheet.h"
#include "text/decoding.h"

namespace scorvane {

namespace {

bool isOneOf(std::string_view cell, std::span<const std::string_view> words) {
  return std::any_of(words.begin(), words.end(),
                     [cell](std::string_view word) { return isSameName(cell, word); });
}

bool isTotal(std::string_view cell) {
  if (!cell.starts_with('T') && !cell.starts_with('t')) return false;  // nearly every row
  static constexpr std::array<std::string_view, 4> kWords = {"total", "totals",
                                                             "total:", "totals:"};
  return isOneOf(cell, kWords);
}

bool saysYes(std::string_view cell) {
  static constexpr std::array<std::string_view, 7> kWords = {"yes", "y",         "x",   "alt",
                                                             "1",   "alternate", "true"};
  return isOneOf(cell, kWords);
}

bool saysNo(std::string_view cell) {
  static constexpr std::array<std::string_view, 9> kWords = {"",      "no",      "n",    "0",  "-",
                                                             "false", "regular", "none", "n/a"};
  return isOneOf(cell, kWords);
}

// Reads the rows of a sheet one by one.
class RosterReader {
 public:
  RosterReader(const Sheet& sheet, RosterPlanner& planner)
      : sheet_(sheet), planner_(planner), columns_(findColumns(sheet)) {}

  /// Whether there was a team or a contestant.
  bool read() {
    remarkOnHeadings();
    for (std::size_t i = columns_.firstRow; i < sheet_.rows().size(); ++i) {
      readRow(sheet_.rows()[i]);
    }
    return foundSomebody_;
  }

 private:
  void remarkOnHeadings() {
    if (columns_.firstRow == 0) return;
    constexpr std::ptrdiff_t kMoreThanATitle = 2;
    for (std::size_t i = 0; i + 1 < columns_.firstRow; ++i) {
      const Sheet::Row& row = sheet_.rows()[i];
      std::ptrdiff_t filled = 0;
      for (std::size_t k = 0; k < row.cells; ++k) filled += sheet_.cell(row, k).empty() ? 0 : 1;
      if (filled < kMoreThanATitle) continue;
      planner_.remark(row.line, "This line is above the headings and is not read.");
    }
    if (columns_.areDoubtful) {
      planner_.remark(sheet_.rows()[columns_.firstRow - 1].line,
                      "This line was read as the headings.");
    }
  }

  [[nodiscard]] std::string_view cellOf(const Sheet::Row& row,
                                        std::optional<std::size_t> column) const {
    return column ? sheet_.cell(row, *column) : std::string_view{};
  }

  std::string_view nameOf(const Sheet::Row& row, const NameColumns& columns) {
    const std::string_view first = cellOf(row, columns.first);
    const std::string_view last = cellOf(row, columns.last);
    if (first.empty() || last.empty()) return first.empty() ? last : first;
    joined_.push_back(std::string(first) + ' ' + std::string(last));
    return joined_.back();
  }

  void readRow(const Sheet::Row& row) {
    std::size_t first = 0;
    while (first + 1 < row.cells && sheet_.cell(row, first).empty()) ++first;
    if (isTotal(sheet_.cell(row, first))) return;

    RosterRow& read = read_;
    read.line = row.line;
    read.people.clear();
    joined_.clear();
    joined_.reserve(columns_.members.size() + 1);  // what was read stays where it is
    const std::string_view team = cellOf(row, columns_.team);
    if (!team.empty()) team_ = team;
    read.team = team_;
    read.coach = nameOf(row, columns_.coach);
    const std::string_view flag = cellOf(row, columns_.alternate);
    if (flag != lastFlag_) {
      lastFlag_ = flag;
      isFlagged_ = saysYes(flag);
      isFlagClear_ = isFlagged_ || saysNo(flag);
    }
    for (const auto& [name, isAlternate] : columns_.members) {
      const std::string_view person = nameOf(row, name);
      if (!person.empty()) read.people.push_back({person, isAlternate || isFlagged_});
    }
    foundSomebody_ = foundSomebody_ || !team.empty() || !read.people.empty();
    if (const auto problem = problemOf(row, read)) return planner_.refuse(row.line, *problem);
    if (team.empty() && read.people.empty() && read.coach.empty()) return;
    planner_.add(read);
    if (!isFlagClear_ && !read.people.empty()) {
      planner_.remark(row.line, quotedName(flag) +
                                    " is neither yes nor no: " + quotedName(read.people[0].name) +
                                    " is taken for a regular member.");
    }
    if (sheet_.hasChanges()) remarkOnChanges(row);
  }

  std::optional<std::string> problemOf(const Sheet::Row& row, const RosterRow& read) const {
    if (row.isQuoteOpen) return "A quote is opened and never closed.  Close it, or take it out.";
    for (std::size_t k = columns_.width.value_or(row.cells); k < row.cells; ++k) {
      const std::string_view cell = sheet_.cell(row, k);
      if (cell.empty()) continue;
      return quotedName(cell) +
             " is in a column without a heading.  Take it out, or put quotes around a name with a "
             "comma.";
    }
    if (!read.team.empty() || (read.people.empty() && read.coach.empty())) return std::nullopt;
    return quotedName(read.people.empty() ? read.coach : read.people[0].name) +
           " has no team.  Put the team's name into this line or one above.";
  }

  void remarkOnChanges(const Sheet::Row& row) {
    remarkOnChanges(row, columns_.team);
    remarkOnChanges(row, columns_.coach.first);
    remarkOnChanges(row, columns_.coach.last);
    for (const auto& [name, isAlternate] : columns_.members) {
      remarkOnChanges(row, name.first);
      remarkOnChanges(row, name.last);
    }
  }

  void remarkOnChanges(const Sheet::Row& row, std::optional<std::size_t> column) {
    if (!column) return;
    for (const char c : sheet_.changes(row, *column)) {
      planner_.remark(row.line, "A character of " + quotedName(sheet_.cell(row, *column)) +
                                    " that contests cannot hold became \"" + c + "\".");
    }
  }

  const Sheet& sheet_;
  RosterPlanner& planner_;
  RosterColumns columns_;
  RosterRow read_;
  std::string_view team_;      ///< of the row above
  std::string_view lastFlag_;  ///< of the row above, and what it says
  bool isFlagged_ = false;
  bool isFlagClear_ = true;
  std::vector<std::string> joined_;
  bool foundSomebody_ = false;
};

// The separator by which the headings tell most, or by which most rows have several cells.
char separatorOf(const DecodedText& decoded) {
  constexpr std::size_t kProbedRows = 40;
  char best = '\t';
  std::pair<std::size_t, std::ptrdiff_t> most;
  for (const char separator : {'\t', ';', ','}) {
    if (decoded.text.find(separator) == std::string::npos) continue;
    const Sheet sheet(decoded, separator, kProbedRows);
    const std::pair told = {findColumns(sheet).kinds,
                            std::count_if(sheet.rows().begin(), sheet.rows().end(),
                                          [](const Sheet::Row& row) { return row.cells > 1; })};
    if (told <= most) continue;
    most = told;
    best = separator;
  }
  return best;
}

}  // namespace

RosterPlan planRoster(std::string_view bytes, const Contest& contest) {
  RosterPlan plan;
  const DecodedText decoded = decodeText(bytes);
  const Sheet sheet(decoded, separatorOf(decoded), std::numeric_limits<std::size_t>::max());
  RosterPlanner planner(contest, plan);
  plan.holdsNobody = !RosterReader(sheet, planner).read();
  planner.finish();
  return plan;
}

}  // namespace scorvane
