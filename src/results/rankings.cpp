#include "results/rankings.h"

#include <algorithm>
#include <limits>

#include "model/class_lists.h"
#include "model/team_index.h"
#include "results/team_ranking.h"

namespace scorvane {

namespace {

// The number to report, or that percentage of `available` in double precision, cut to a whole
// number.
std::int64_t rowsToList(const ReportRequest& request, std::size_t available) {
  if (!request.percent) return request.numToReport;
  return static_cast<std::int64_t>((request.numToReport / 100.0) * static_cast<double>(available));
}

std::vector<MemberRow> memberRows(const Contest& contest,
                                  const std::vector<IndividualRankEntry>& totals,
                                  const Team& team) {
  std::vector<MemberRow> rows;
  for (std::size_t slot = 0; slot < regularSlots(contest.settings, team); ++slot) {
    const ContestantNumber number = team.members[slot];
    rows.push_back(
        {number, &contestantName(contest, number), totalsOf(contest, totals, number).score});
  }
  for (const std::size_t slot : countingSlots(contest, totals, team)) rows[slot].counts = true;
  return rows;
}

// As much of the ranking as a list of `wanted` rows needs, the row behind its last one included. A
// short list is found without sorting everybody, but for one with a true tie or a contestant
// without a name: only the whole ranking says who comes next then.
std::vector<IndividualRankEntry> rankingFor(const Contest& contest,
                                            const std::vector<IndividualRankEntry>& totals,
                                            TieOrder order, std::int64_t wanted) {
  const auto needed = static_cast<std::size_t>(std::max<std::int64_t>(wanted, 1) + 1);
  if (needed < totals.size() / 4) {
    std::vector<IndividualRankEntry> top(needed);
    if (rankTop(totals, order, top) &&
        std::none_of(top.begin(), top.end(), [&](const IndividualRankEntry& entry) {
          return contestantName(contest, entry.contestantNumber).empty();
        })) {
      return top;
    }
  }
  return rankIndividuals(totals, order);
}

// The first contestant with a name from a position of the ranking on; null when there is none.
const RankValues* nextNamed(const Contest& contest, const std::vector<IndividualRankEntry>& ranking,
                            std::size_t from) {
  for (std::size_t i = from; i < ranking.size(); ++i) {
    if (!contestantName(contest, ranking[i].contestantNumber).empty()) return &ranking[i].values;
  }
  return nullptr;
}

}  // namespace

ReportRequest wholeContestRequest(const Contest& contest, ScoreKind kind) {
  ReportRequest request;
  request.kind = kind;
  request.classes = allClasses(contest.classes);
  request.numToReport = contest.settings.numToReport;
  request.percent = contest.settings.reportPercent;
  return request;
}

ReportRequest everybodyRequest(const Contest& contest, ScoreKind kind) {
  ReportRequest request = wholeContestRequest(contest, kind);
  request.numToReport = std::numeric_limits<std::int32_t>::max();
  request.percent = false;
  return request;
}

std::vector<IndividualRow> individualRows(const Contest& contest, const ReportRequest& request) {
  return individualRows(contest, request, contestantTotals(contest, request.kind, request.classes));
}

std::vector<IndividualRow> individualRows(const Contest& contest, const ReportRequest& request,
                                          const std::vector<IndividualRankEntry>& totals) {
  const std::size_t named = countNamed(contest);
  const std::int64_t wanted = rowsToList(request, named);
  const TieOrder order = tieOrderFor(contest, request.kind, request.classes);
  const auto ranking = rankingFor(contest, totals, order, wanted);
  const TeamIndex teams(contest);
  std::vector<IndividualRow> rows;
  RankValues previous;
  std::size_t i = 0;
  for (; i < ranking.size(); ++i) {
    const auto& [number, values] = ranking[i];
    const std::string& name = contestantName(contest, number);
    if (!name.empty()) {
      const std::size_t place = rows.size() + 1;
      // The next entry counts even when its contestant has no name and is not listed.
      // Odd but required, docs/required-behaviour.md: nameless-neighbour-shows-tie
      const bool hasNext = place < named && i + 1 < ranking.size();
      const RankValues next = hasNext ? ranking[i + 1].values : RankValues{};
      rows.push_back({static_cast<int>(place),
                      number,
                      &name,
                      &teams.teamOf(number),
                      values.score,
                      tieColumns(order, values, previous, next),
                      {}});
      if (place > 1) {
        noteTie(order, previous, rows[place - 2].outcome, values, rows[place - 1].outcome);
      }
      previous = values;
    }
    // Asked after each entry, listed or not.
    // Odd but required, docs/required-behaviour.md: zero-rows-list-the-leader
    if (static_cast<std::int64_t>(rows.size()) >= wanted) break;
  }
  const RankValues* next = nextNamed(contest, ranking, i + 1);
  TieOutcome ofNext;
  if (next != nullptr && !rows.empty()) {
    noteTie(order, previous, rows.back().outcome, *next, ofNext);
  }
  return rows;
}

std::vector<TeamRow> teamRows(const Contest& contest, const ReportRequest& request) {
  return teamRows(contest, request, contestantTotals(contest, request.kind, request.classes));
}

std::vector<TeamRow> teamRows(const Contest& contest, const ReportRequest& request,
                              const std::vector<IndividualRankEntry>& totals) {
  const std::int64_t wanted = rowsToList(request, contest.teams.size());
  const TieOrder order = tieOrderFor(contest, request.kind, request.classes);
  const std::vector<TeamRankEntry> ranking = rankTeams(contest, totals, order);
  std::vector<TeamRow> rows;
  RankValues previous;
  TieOutcome ofThis;
  for (std::size_t i = 0; i < ranking.size(); ++i) {
    const auto& [name, team] = *ranking[i].team;
    const RankValues& values = ranking[i].values;
    const RankValues next = i + 1 < ranking.size() ? ranking[i + 1].values : RankValues{};
    rows.push_back({static_cast<int>(i) + 1, &name, &team.coach, memberRows(contest, totals, team),
                    values.score, tieColumns(order, values, previous, next), ofThis});
    TieOutcome ofNext;
    if (i + 1 < ranking.size()) noteTie(order, values, rows.back().outcome, next, ofNext);
    ofThis = ofNext;
    previous = values;
    if (static_cast<std::int64_t>(rows.size()) >= wanted) break;
  }
  return rows;
}

}  // namespace scorvane
