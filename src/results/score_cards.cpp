#include "results/score_cards.h"

#include "model/class_lists.h"
#include "model/team_index.h"
#include "results/team_ranking.h"

namespace scorvane {

std::map<const Team*, TeamStandings> teamStandings(const Contest& contest) {
  std::map<const Team*, TeamStandings> standings;
  const ClassSet classes = allClasses(contest.classes);
  for (const ScoreKind kind : kScoreKinds) {
    const auto totals = contestantTotals(contest, kind, classes);
    int place = 0;
    for (const auto& [team, values] :
         rankTeams(contest, totals, tieOrderFor(contest, kind, classes))) {
      standings[&team->second].at(static_cast<std::size_t>(kind)) = {++place, values.score};
    }
  }
  return standings;
}

ScoreCards::ScoreCards(const Contest& contest)
    : contest_(contest),
      columns_(contest),
      places_(contest.contestantNames.size()),
      overall_(contestantTotals(contest, ScoreKind::overall, allClasses(contest.classes))) {
  findTotals();
  for (const IndividualRow& row :
       individualRows(contest, everybodyRequest(contest, ScoreKind::overall), overall_)) {
    places_[contest.contestantNames.positionOf(row.number)] = row.place;
  }
}

int ScoreCards::placeOf(ContestantNumber number) const {
  const std::size_t position = contest_.contestantNames.positionOf(number);
  return position == places_.size() ? 0 : places_[position];
}

CardRow ScoreCards::cardOf(ContestantNumber number, const std::string& name) const {
  const std::size_t position = contest_.scores.positionOf(number);
  if (position == overall_.size()) return {number, &name};
  const ClassScores& scores =
      (contest_.scores.begin() + static_cast<std::ptrdiff_t>(position))->second;
  return {number, &name, &scores, overall_[position].values.score, placeOf(number)};
}

std::vector<CardRow> ScoreCards::membersOf(const Team& team) const {
  const std::size_t regular = regularSlots(contest_.settings, team);
  std::vector<bool> counting(team.members.size());
  for (const std::size_t slot : countingSlots(contest_, overall_, team)) counting[slot] = true;
  std::vector<CardRow> cards;
  for (std::size_t slot = 0; slot < team.members.size(); ++slot) {
    const std::string& name = contestantName(contest_, team.members[slot]);
    if (name.empty()) continue;
    CardRow& card = cards.emplace_back(cardOf(team.members[slot], name));
    card.isAlternate = slot >= regular;
    card.counts = counting[slot];
  }
  return cards;
}

std::vector<CardRow> ScoreCards::withoutTeam() const {
  const TeamIndex teams(contest_);
  std::vector<CardRow> cards;
  for (const auto& [number, name] : contest_.contestantNames) {
    if (!name.empty() && !teams.hasTeam(number)) cards.push_back(cardOf(number, name));
  }
  return cards;
}

void ScoreCards::findTotals() {
  for (const SummaryBlock& block : columns_.blocks()) {
    const bool isCategory = block.kind == SummaryBlock::Kind::category;
    if (block.kind == SummaryBlock::Kind::judgingClass) continue;
    if (isCategory && !hasCategories(contest_)) continue;
    auto& [total, sums] = totals_.emplace_back();
    if (isCategory) total.category = &block.title;
    std::size_t column = block.firstColumn;
    for (const std::string_view heading : block.headings) {
      auto sum = &CardTotal::total;
      if (heading == "PLC") {
        sum = &CardTotal::placings;
      } else if (heading == "RSN") {
        total.hasReasons = true;
        sum = &CardTotal::reasons;
      } else if (heading == "QUE") {
        total.hasQuestions = true;
        sum = &CardTotal::questions;
      }
      sums.emplace_back(sum, column++);
    }
  }
}

std::vector<CardTotal> ScoreCards::totalsOf(const CardRow& card) const {
  std::vector<std::int32_t> cells(columns_.count());
  if (card.scores != nullptr) columns_.addUp(*card.scores, cells);
  std::vector<CardTotal> totals;
  totals.reserve(totals_.size());
  for (const auto& [empty, sums] : totals_) {
    CardTotal& total = totals.emplace_back(empty);
    for (const auto& [sum, column] : sums) total.*sum = cells[column];
  }
  return totals;
}

}  // namespace scorvane
