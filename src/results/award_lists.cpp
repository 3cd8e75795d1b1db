#include "results/award_lists.h"

#include <algorithm>
#include <array>
#include <utility>

#include "model/class_lists.h"
#include "model/contest_differences.h"
#include "results/high_reports.h"
#include "text/format.h"

namespace scorvane {

namespace {

// A hundred thousand contestants judging thirty classes of twenty categories need half of this.
constexpr std::size_t kMostVisits = 128U << 20U;

// What ranking one list goes through.
std::size_t visitsPerList(const Contest& contest) {
  std::size_t visits = contest.classes.className.size();
  for (const auto& [number, records] : contest.scores) visits += 8 + records.size();
  for (const auto& [name, team] : contest.teams) visits += 8 + 8 * team.members.size();
  return visits;
}

ReportRequest categoryRequest(const Contest& contest, std::size_t category,
                              std::vector<std::int32_t> classes) {
  ReportRequest request;
  request.classes = std::move(classes);
  request.numToReport = contest.settings.numToReport;
  request.percent = contest.settings.reportPercent;
  request.title = categoryName(contest, static_cast<std::int32_t>(category));
  return request;
}

std::vector<ReportRequest> categoryRequests(const Contest& contest) {
  std::vector<ReportRequest> requests;
  const auto count = static_cast<std::size_t>(contest.classes.count());
  auto categories = classesByCategory(contest);
  for (std::size_t category = 0; category < categories.size(); ++category) {
    const std::size_t size = categories[category].size();
    // A category of all classes would have the overall awards once more.
    if (size == 0 || size == count) continue;
    requests.push_back(categoryRequest(contest, category, std::move(categories[category])));
  }
  return requests;
}

bool takesTooLong(const Contest& contest, std::size_t lists) {
  return lists > 4 && lists > kMostVisits / visitsPerList(contest);
}

/// Who has anything entered that the request counts, in order.
std::vector<ContestantNumber> entrants(const Contest& contest, const ReportRequest& request) {
  constexpr std::array kCounted = {std::pair(ScoreKind::placings, ScoreValue::letter),
                                   std::pair(ScoreKind::reasons, ScoreValue::reasons),
                                   std::pair(ScoreKind::questions, ScoreValue::questions)};
  const auto hasCard = [&](const auto& entry) {
    const auto& [judged, record] = entry;
    return std::binary_search(request.classes.begin(), request.classes.end(), judged) &&
           std::any_of(kCounted.begin(), kCounted.end(), [&, &card = record](const auto& counted) {
             return (request.kind == ScoreKind::overall || request.kind == counted.first) &&
                    isEntered(counted.second, card);
           });
  };
  std::vector<ContestantNumber> numbers;
  for (const auto& [number, scores] : contest.scores) {
    if (std::any_of(scores.begin(), scores.end(), hasCard)) numbers.push_back(number);
  }
  return numbers;
}

// By an ordering and its values that break ties. The values of the questions ranking are those of
// the reasons ranking, taken over the questions.
const char* decider(ScoreKind kind, TieOrder order, int rule) {
  const bool first = rule == 1;
  switch (order) {
    case TieOrder::overall:
      return first ? "reasons" : "lower placings in reasons classes";
    case TieOrder::reasons:
      if (!first) return "the overall score";
      return kind == ScoreKind::questions ? "lower placings in questions classes"
                                          : "lower placings in reasons classes";
    case TieOrder::category:
      break;
  }
  if (first) return "reasons in the category";
  return rule == 2 ? "reasons in all classes" : "the overall score";
}

std::string inWords(ScoreKind kind, TieOrder order, int place, const TieOutcome& outcome) {
  std::string words;
  if (outcome.equalsPrevious || outcome.equalsNext) {
    words = "tied with ";
    if (outcome.equalsPrevious) words += placeInWords(place - 1);
    if (outcome.equalsPrevious && outcome.equalsNext) words += " and ";
    if (outcome.equalsNext) words += placeInWords(place + 1);
    words += ", no rule breaks it";
  }
  if (outcome.rule > 0) {
    appendFormat(words, "%swon on %s, %d to %d", words.empty() ? "" : "; ",
                 decider(kind, order, outcome.rule), outcome.own, outcome.next);
  }
  return words;
}

}  // namespace

std::optional<std::vector<ReportRequest>> awardRequests(const Contest& contest) {
  std::vector<ReportRequest> requests = categoryRequests(contest);
  if (!reasonsClasses(contest.classes).empty()) {
    requests.push_back(wholeContestRequest(contest, ScoreKind::reasons));
  }
  if (!questionsClasses(contest.classes).empty()) {
    requests.push_back(wholeContestRequest(contest, ScoreKind::questions));
  }
  requests.push_back(wholeContestRequest(contest, ScoreKind::overall));
  if (takesTooLong(contest, requests.size())) return std::nullopt;
  return requests;
}

std::optional<std::vector<ReportRequest>> printedLists(const Contest& contest) {
  std::vector<ReportRequest> categories = categoryRequests(contest);
  if (takesTooLong(contest, categories.size())) return std::nullopt;
  std::vector<ReportRequest> lists;
  for (const bool team : {false, true}) {
    for (const ScoreKind kind : kScoreKinds) {
      if (kind == ScoreKind::reasons && reasonsClasses(contest.classes).empty()) continue;
      if (kind == ScoreKind::questions && questionsClasses(contest.classes).empty()) continue;
      lists.push_back(wholeContestRequest(contest, kind));
      lists.back().team = team;
    }
  }
  for (ReportRequest& request : categories) {
    lists.push_back(customRequest(std::move(request)));
    lists.push_back(lists.back());
    lists.back().team = true;
  }
  return lists;
}

std::string listName(const ReportRequest& request) {
  return formatText("High %s %.40s", request.team ? "Team" : "Individual",
                    awardName(request).c_str());
}

AwardRows awardRows(const Contest& contest, const ReportRequest& request) {
  const auto totals = contestantTotals(contest, request.kind, request.classes);
  AwardRows rows = {individualRows(contest, request, totals), teamRows(contest, request, totals)};
  const std::vector<ContestantNumber> entered = entrants(contest, request);
  const auto hasEntered = [&](ContestantNumber number) {
    return std::binary_search(entered.begin(), entered.end(), number);
  };
  std::erase_if(rows.individuals,
                [&](const IndividualRow& row) { return !hasEntered(row.number); });
  std::erase_if(rows.teams, [&](const TeamRow& row) {
    return std::none_of(row.members.begin(), row.members.end(), [&](const MemberRow& member) {
      return !member.name->empty() && hasEntered(member.number);
    });
  });
  return rows;
}

const std::string& awardName(const ReportRequest& request) {
  static const std::array<std::string, kScoreKinds.size()> kNames = {"Overall", "Placings",
                                                                     "Reasons", "Questions"};
  return request.title.empty() ? kNames.at(static_cast<std::size_t>(request.kind)) : request.title;
}

std::string placeInWords(int place) {
  const int ones = place % 10;
  const bool isTeen = place / 10 % 10 == 1;
  const char* ending = isTeen || ones == 0 || ones > 3 ? "th"
                       : ones == 1                     ? "st"
                       : ones == 2                     ? "nd"
                                                       : "rd";
  return formatText("%d%s", place, ending);
}

std::string tieInWords(const ReportRequest& request, const IndividualRow& row) {
  return inWords(request.kind, row.ties.order, row.place, row.outcome);
}

std::string tieInWords(const ReportRequest& request, const TeamRow& row) {
  return inWords(request.kind, row.ties.order, row.place, row.outcome);
}

}  // namespace scorvane
