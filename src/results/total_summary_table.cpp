#include "results/total_summary_table.h"

#include "model/team_index.h"
#include "results/contestant_totals.h"
#include "results/team_scoring.h"

namespace scorvane {

namespace {

// A hundred thousand contestants judging thirty classes with everything need a third of this.
constexpr std::size_t kMostCells = 32U << 20U;

std::size_t linesNeeded(const Contest& contest) {
  std::size_t lines = contest.contestantNames.size() + contest.teams.size();
  for (const auto& [name, team] : contest.teams) lines += team.members.size();
  return lines;
}

}  // namespace

std::optional<SummaryTable> SummaryTable::of(const Contest& contest) {
  SummaryTable table(contest);
  if (linesNeeded(contest) > kMostCells / table.columns_.count()) return std::nullopt;
  for (const auto& [name, team] : contest.teams) table.addTeam(contest, name, team);
  table.addContestantsWithoutTeam(contest);
  return table;
}

std::size_t SummaryTable::addCells(const ClassScores* records) {
  const std::size_t first = cells_.size();
  cells_.resize(first + columns_.count());
  if (records != nullptr) columns_.addUp(*records, std::span(cells_).subspan(first));
  return first;
}

void SummaryTable::addTeam(const Contest& contest, const std::string& name, const Team& team) {
  SummaryTeam& summary = teams_.emplace_back(SummaryTeam{&name, &team.coach, rows_.size(), 0, 0});
  const std::size_t regularCount = regularSlots(contest.settings, team);
  std::vector<std::size_t> regulars;  // first cells
  for (std::size_t slot = 0; slot < team.members.size(); ++slot) {
    const ContestantNumber number = team.members[slot];
    const std::string& member = contestantName(contest, number);
    const bool isAlternate = slot >= regularCount;
    if (isAlternate && member.empty()) continue;
    // An empty slot counts as a member with zeros, as in the ranking of teams.
    const std::size_t cells = addCells(member.empty() ? nullptr : contest.scores.find(number));
    if (!isAlternate) regulars.push_back(cells);
    if (!member.empty()) rows_.push_back({number, &member, isAlternate, cells});
  }
  summary.rowCount = rows_.size() - summary.firstRow;
  summary.firstTotal = addCells(nullptr);
  addTeamTotals(contest.settings, regulars,
                std::span(cells_).subspan(summary.firstTotal, columns_.count()));
}

// Each column counts the members who are best in it, so that it shows the very total that the
// high team report of that kind and those classes ranks the team by.
void SummaryTable::addTeamTotals(const ContestSettings& settings,
                                 std::span<const std::size_t> regulars,
                                 std::span<std::int32_t> totals) const {
  std::vector<std::int32_t> scores(regulars.size());
  std::vector<std::size_t> counting;
  for (std::size_t column = 0; column < totals.size(); ++column) {
    for (std::size_t i = 0; i < regulars.size(); ++i) scores[i] = cells_[regulars[i] + column];
    chooseCountingSlots(settings, scores, counting);
    for (const std::size_t slot : counting) {
      totals[column] = wrappingSum(totals[column], scores[slot]);
    }
  }
}

void SummaryTable::addContestantsWithoutTeam(const Contest& contest) {
  const TeamIndex index(contest);
  SummaryTeam group;
  group.firstRow = rows_.size();
  for (const auto& [number, name] : contest.contestantNames) {
    if (name.empty() || index.hasTeam(number)) continue;
    rows_.push_back({number, &name, false, addCells(contest.scores.find(number))});
  }
  group.rowCount = rows_.size() - group.firstRow;
  if (group.rowCount > 0) teams_.push_back(group);
}

}  // namespace scorvane
