#include "results/score_cards.h"

#include "model/class_lists.h"
#include "model/team_index.h"
#include "results/team_ranking.h"

namespace scorvane {

ScoreCards::ScoreCards(const Contest& contest)
    : contest_(contest), columns_(contest), places_(contest.contestantNames.size()) {
  for (const IndividualRow& row :
       individualRows(contest, everybodyRequest(contest, ScoreKind::overall))) {
    places_[contest.contestantNames.positionOf(row.number)] = row.place;
  }
  const ClassSet classes = allClasses(contest.classes);
  for (const ScoreKind kind : kScoreKinds) {
    const auto totals = contestantTotals(contest, kind, classes);
    int place = 0;
    for (const auto& [team, values] :
         rankTeams(contest, totals, tieOrderFor(contest, kind, classes))) {
      standings_[&team->second].at(static_cast<std::size_t>(kind)) = {++place, values.score};
    }
    if (kind == ScoreKind::overall) overall_ = totals;
  }
}

int ScoreCards::placeOf(ContestantNumber number) const {
  const std::size_t position = contest_.contestantNames.positionOf(number);
  return position == places_.size() ? 0 : places_[position];
}

const TeamStandings& ScoreCards::standingsOf(const Team& team) const {
  return standings_.at(&team);
}

CardRow ScoreCards::cardOf(ContestantNumber number, const std::string& name) const {
  return {number, &name, contest_.scores.find(number), placeOf(number)};
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

std::vector<CardTotal> ScoreCards::totalsOf(const CardRow& card) const {
  std::vector<std::int32_t> cells(columns_.count());
  if (card.scores != nullptr) columns_.addUp(*card.scores, cells);
  std::vector<CardTotal> totals;
  for (const SummaryBlock& block : columns_.blocks()) {
    if (block.kind == SummaryBlock::Kind::judgingClass) continue;
    CardTotal& total = totals.emplace_back();
    if (block.kind == SummaryBlock::Kind::category) total.category = &block.title;
    std::size_t column = block.firstColumn;
    for (const std::string_view heading : block.headings) {
      const std::int32_t cell = cells[column++];
      if (heading == "PLC") {
        total.placings = cell;
      } else if (heading == "RSN") {
        total.hasReasons = true;
        total.reasons = cell;
      } else if (heading == "QUE") {
        total.hasQuestions = true;
        total.questions = cell;
      } else {
        total.total = cell;
      }
    }
  }
  return totals;
}

}  // namespace scorvane
