#include "results/high_reports.h"

#include <utility>

#include "results/rankings.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

void appendIndividualHeading(std::string& out, const ReportRequest& request) {
  appendFormat(out, "High Individual %s %s\n\n", scoreKindWord(request.kind),
               request.title.c_str());
  appendFormat(out, "%5.5s  %-30.30s  %-30.30s  %5.5s    %12.12s\n", "Place", "Contestant Name",
               "Team Name", "Score", "Tie Breakers");
  constexpr std::size_t kRuleLength = 93;
  out.append(kRuleLength, '-').append("\n");
}

void appendIndividual(std::string& out, const IndividualRow& row) {
  appendFormat(out, "%5d  %-30.30s  %-30.30s  %5d", row.place, row.name->c_str(), row.team->c_str(),
               row.score);
  for (int i = 0; i < row.ties.count; ++i) {
    appendFormat(out, i == 0 ? "  %6d" : " %6d", row.ties.values.at(static_cast<std::size_t>(i)));
  }
  out += '\n';
}

void appendTeamHeading(std::string& out, const Contest& contest, const ReportRequest& request) {
  appendFormat(out, "High Team %s %s (scoring the top %d per team)\n\n",
               scoreKindWord(request.kind), request.title.c_str(), contest.settings.numToScore);
  out +=
      "Place        Team                 Team Members                  Score   Tie Breaker(s)\n"
      "-----  ---------------------  --------------------------------  -----  -----------------\n";
}

// The team's own line, which also names the member in its first slot.
void appendTeamLine(std::string& out, const TeamRow& row) {
  const bool isNamed = !row.members.empty() && !row.members[0].name->empty();
  const std::string ownScore = isNamed ? formatText("(%4d)", row.members[0].score) : "      ";
  appendFormat(out, "  %-3d  %-21.21s  %-25.25s %s", row.place, row.name->c_str(),
               isNamed ? row.members[0].name->c_str() : "", ownScore.c_str());
  // Odd but required, docs/required-behaviour.md: team-scores-not-lined-up
  const bool overall = row.ties.order == TieOrder::overall;
  appendFormat(out, overall && row.ties.count < 2 ? "  %5d" : " %5d", row.score);
  for (int i = 0; i < row.ties.count; ++i) {
    appendFormat(out, i == 0 && !overall ? "  %6d" : " %6d",
                 row.ties.values.at(static_cast<std::size_t>(i)));
  }
  out += '\n';
}

void appendOtherMembersAndCoach(std::string& out, const TeamRow& row) {
  for (std::size_t slot = 1; slot < row.members.size(); ++slot) {
    const MemberRow& member = row.members[slot];
    if (member.name->empty()) continue;
    appendFormat(out, "  %-3.3s  %-21.21s  %-25.25s (%4d)  %5.5s   %-15.15s\n", "", "",
                 member.name->c_str(), member.score, "", "");
  }
  // The second text has no width at all: it leaves only the blanks around it.
  appendFormat(out, "  %-3.3s  %-.0s  Coach: %-30.30s  %5.5s   %-15.15s\n\n", "", "",
               row.coach->c_str(), "", "");
}

void appendTeam(std::string& out, const TeamRow& row) {
  appendTeamLine(out, row);
  appendOtherMembersAndCoach(out, row);
}

// A heading and a part for each row.
template <typename Row, typename Append>
std::vector<std::string> partsOf(std::string heading, const std::vector<Row>& rows, Append append) {
  std::vector<std::string> parts;
  parts.reserve(rows.size() + 1);
  parts.push_back(std::move(heading));
  for (const Row& row : rows) append(parts.emplace_back(), row);
  return parts;
}

}  // namespace

std::string highIndividualReport(const Contest& contest, const ReportRequest& request) {
  std::string out;
  appendIndividualHeading(out, request);
  for (const IndividualRow& row : individualRows(contest, request)) appendIndividual(out, row);
  return out;
}

std::string highTeamReport(const Contest& contest, const ReportRequest& request) {
  std::string out;
  appendTeamHeading(out, contest, request);
  for (const TeamRow& row : teamRows(contest, request)) {
    appendTeam(out, row);
    if (closeIfTooLong(out)) break;
  }
  return out;
}

std::vector<std::string> highReportParts(const Contest& contest, const ReportRequest& request) {
  std::string heading;
  if (request.team) {
    appendTeamHeading(heading, contest, request);
    return partsOf(std::move(heading), teamRows(contest, request), appendTeam);
  }
  appendIndividualHeading(heading, request);
  return partsOf(std::move(heading), individualRows(contest, request), appendIndividual);
}

ReportRequest customRequest(ReportRequest request) {
  if (request.classes.size() > kMostCustomClasses) request.classes.resize(kMostCustomClasses);
  if (request.title.size() > kLongestCustomTitle) request.title.resize(kLongestCustomTitle);
  return request;
}

std::string customReport(const Contest& contest, ReportRequest request) {
  request = customRequest(std::move(request));
  return request.team ? highTeamReport(contest, request) : highIndividualReport(contest, request);
}

}  // namespace scorvane
