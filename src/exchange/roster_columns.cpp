#include "exchange/roster_columns.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "exchange/roster_headings.h"
#include "exchange/roster_names.h"

namespace scorvane {

namespace {

// The first column of a name counts, be it of the whole name or of a part of it.
struct FoundName {
  std::int32_t number = 0;
  bool isAlternate = false;
  bool isWhole = false;
  NameColumns columns;

  void add(const Heading& heading, std::size_t column) {
    const bool first = heading.isFirstName;
    const bool last = heading.isLastName;
    if (!columns.exist()) isWhole = !first && !last;
    if (isWhole || last) {
      auto& place = isWhole ? columns.first : columns.last;
      if (!place && (isWhole ? !first && !last : true)) place = column;
    } else if (first && !columns.first) {
      columns.first = column;
    }
  }
};

class HeadingRow {
 public:
  HeadingRow(const Sheet& sheet, const Sheet::Row& row) {
    // More columns than any sheet has; each costs time in every row.
    constexpr std::size_t kMostColumns = 2000;
    for (std::size_t column = 0; column < row.cells; ++column) {
      const std::string_view cell = sheet.cell(row, column);
      if (cell.empty()) continue;
      found_.width = column + 1;
      ++filled_;
      if (column >= kMostColumns) continue;
      const Heading heading = readHeading(cell);
      if (heading.isClear) {
        ++clear_;
      } else if (heading.kind != ColumnKind::none) {
        unclear_.push_back(column);
      }
      note(heading, column);
    }
    finish();
  }

  [[nodiscard]] const RosterColumns& columns() const { return found_; }
  [[nodiscard]] std::size_t filledCells() const { return filled_; }
  /// As columns().kinds, of the headings that read like nothing else.
  [[nodiscard]] std::size_t clearKinds() const { return clearKinds_; }
  [[nodiscard]] bool isAllClear() const { return clear_ == filled_; }
  /// Columns that may hold a team or a person with a telling name.
  [[nodiscard]] const std::vector<std::size_t>& unclear() const { return unclear_; }

 private:
  void note(const Heading& heading, std::size_t column) {
    const bool isLater = heading.kind == ColumnKind::team && found_.team;
    const ColumnKind kind = isLater ? heading.laterKind : heading.kind;
    if (heading.isClear) saysClearly_.at(static_cast<std::size_t>(kind)) = true;
    if (kind == ColumnKind::team) {
      found_.team = column;
    } else if (kind == ColumnKind::coach) {
      coach_.add(heading, column);
    } else if (kind == ColumnKind::alternate) {
      if (!alternate_) alternate_ = column;
      addMember(heading, column, true);
    } else if (kind == ColumnKind::contestant) {
      addMember(heading, column, heading.asksAlternate);
      if (heading.asksAlternate && !askedAlternate_) askedAlternate_ = column;
    }
  }

  // The same heading once more is another member.
  void addMember(const Heading& heading, std::size_t column, bool isAlternate) {
    const auto repeated = std::count(keys_.begin(), keys_.end(), heading.key);
    keys_.push_back(heading.key);
    constexpr std::int32_t kRepeated = 10000;
    const std::int32_t number = heading.number + kRepeated * static_cast<std::int32_t>(repeated);
    auto member = std::find_if(members_.begin(), members_.end(), [&](const FoundName& m) {
      return m.number == number && m.isAlternate == isAlternate;
    });
    if (member == members_.end()) member = members_.insert(member, {number, isAlternate, {}, {}});
    member->add(heading, column);
  }

  void finish() {
    found_.coach = coach_.columns;
    const bool isFirstNumbered =
        std::any_of(members_.begin(), members_.end(),
                    [](const FoundName& m) { return m.number == 1 && !m.isAlternate; });
    std::size_t regular = 0;
    bool isNumbered = false;
    for (const FoundName& member : members_) {
      if (member.isAlternate || (isFirstNumbered && member.number == 0)) continue;
      ++regular;
      isNumbered = isNumbered || member.number > 0;
    }
    const bool hasAlternates = alternate_ || askedAlternate_;
    const bool isTeamPerRow = regular > 1 || (isNumbered && hasAlternates);
    for (const FoundName& member : members_) {
      if (isTeamPerRow && isFirstNumbered && member.number == 0 && !member.isAlternate) continue;
      if (!isTeamPerRow && (member.isAlternate || !found_.members.empty())) continue;
      found_.members.push_back({member.columns, member.isAlternate});
    }
    if (!isTeamPerRow) found_.alternate = alternate_ ? alternate_ : askedAlternate_;
    const bool hasParts =
        found_.members.size() == 1 && found_.members[0].name.last && found_.members[0].name.first;
    const std::size_t parts = hasParts || regular > 1 ? 1 : 0;
    found_.kinds = (found_.team ? 1U : 0U) + (found_.coach.exist() ? 1U : 0U) +
                   (found_.members.empty() ? 0U : 1U) + parts + (found_.alternate ? 1U : 0U);
    clearKinds_ =
        static_cast<std::size_t>(std::count(saysClearly_.begin() + 1, saysClearly_.end(), true));
    if (saysClearly_.at(static_cast<std::size_t>(ColumnKind::contestant))) clearKinds_ += parts;
  }

  RosterColumns found_;
  std::size_t filled_ = 0;
  std::size_t clear_ = 0;
  std::size_t clearKinds_ = 0;
  std::array<bool, static_cast<std::size_t>(ColumnKind::alternate) + 1> saysClearly_{};
  std::vector<std::size_t> unclear_;
  FoundName coach_;
  std::vector<FoundName> members_;
  std::vector<std::string> keys_;
  std::optional<std::size_t> alternate_;
  std::optional<std::size_t> askedAlternate_;
};

RosterColumns columnsWithoutHeadings(const Sheet& sheet) {
  std::vector<bool> isUsed;
  for (const Sheet::Row& row : sheet.rows()) {
    if (isUsed.size() < row.cells) isUsed.resize(row.cells);
    for (std::size_t column = 0; column < row.cells; ++column) {
      if (!sheet.cell(row, column).empty()) isUsed[column] = true;
    }
  }
  std::vector<std::size_t> used;
  for (std::size_t column = 0; column < isUsed.size() && used.size() < 3; ++column) {
    if (isUsed[column]) used.push_back(column);
  }
  RosterColumns columns;
  if (!used.empty()) columns.team = used[0];
  if (used.size() > 1) columns.members = {{{used[1], std::nullopt}, false}};
  if (used.size() > 2) columns.coach.first = used[2];
  return columns;
}

// Further down a row that reads like headings is none.
constexpr std::size_t kMostRowsAbove = 30;

// Teams come again in the rows of their other members, headings do not.
bool isSeenBelow(const Sheet& sheet, std::size_t row, std::size_t column) {
  const auto& rows = sheet.rows();
  const std::string_view cell = sheet.cell(rows[row], column);
  for (std::size_t i = row + 1; i < std::min(rows.size(), row + kMostRowsAbove); ++i) {
    if (isSameName(sheet.cell(rows[i], column), cell)) return true;
  }
  return false;
}

bool isNumberedTeam(const Sheet& sheet, std::size_t row, std::size_t column) {
  if (row >= sheet.rows().size()) return false;
  const Heading heading = readHeading(sheet.cell(sheet.rows()[row], column));
  return heading.kind == ColumnKind::team && heading.number > 0;
}

// "Team 1" above or below "Team 2" is a team.
bool isAmongNumberedTeams(const Sheet& sheet, std::size_t row, const RosterColumns& columns) {
  if (!columns.team || !isNumberedTeam(sheet, row, *columns.team)) return false;
  return isNumberedTeam(sheet, row + 1, *columns.team) ||
         (row > 0 && isNumberedTeam(sheet, row - 1, *columns.team));
}

}  // namespace

RosterColumns findColumns(const Sheet& sheet) {
  std::optional<RosterColumns> doubtful;
  bool isBelowRows = false;  // of several cells: a list without headings, or a table above it
  for (std::size_t i = 0; i < std::min(sheet.rows().size(), kMostRowsAbove); ++i) {
    const HeadingRow headings(sheet, sheet.rows()[i]);
    RosterColumns columns = headings.columns();
    columns.firstRow = i + 1;
    columns.areDoubtful = isBelowRows;
    const bool isTeam = isAmongNumberedTeams(sheet, i, columns);
    if (headings.clearKinds() > 1 && !isTeam) return columns;
    columns.areDoubtful = isBelowRows || !headings.isAllClear();
    const bool canBeRow = isTeam || headings.clearKinds() == 0 ||
                          (isBelowRows && columns.kinds < 3) ||
                          (columns.kinds == 1 && !columns.team && !headings.isAllClear());
    const bool isRow = std::any_of(headings.unclear().begin(), headings.unclear().end(),
                                   [&](std::size_t k) { return isSeenBelow(sheet, i, k); });
    if (!canBeRow && !isRow && (!doubtful || columns.kinds > doubtful->kinds)) doubtful = columns;
    isBelowRows = isBelowRows || headings.filledCells() > 1;
  }
  return doubtful ? *doubtful : columnsWithoutHeadings(sheet);
}

}  // namespace scorvane
