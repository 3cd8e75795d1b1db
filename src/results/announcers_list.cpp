#include "results/announcers_list.h"

#include "results/award_lists.h"
#include "results/hand_out.h"
#include "text/format.h"

namespace scorvane {

namespace {

// `who` is a contestant with the team, or a team with its coach.
template <typename Row>
void appendRow(std::string& out, const ReportRequest& request, const Row& row,
               const std::string& who, const std::string& with) {
  appendFormat(out, "%5s  %-30.30s %-30.30s %6d\n", placeInWords(row.place).c_str(), who.c_str(),
               with.c_str(), row.score);
  // Each part on a line: both would be too wide.
  std::string words = tieInWords(request, row);
  if (words.empty()) return;
  if (const std::size_t both = words.find("; "); both != std::string::npos) {
    words.replace(both, 2, "\n       ");
  }
  out += "       " + words + "\n";
}

void appendRow(std::string& out, const ReportRequest& request, const IndividualRow& row) {
  appendRow(out, request, row, *row.name, *row.team);
}

void appendRow(std::string& out, const ReportRequest& request, const TeamRow& row) {
  appendRow(out, request, row, *row.name, *row.coach);
}

std::string title(const ReportRequest& request, const char* whose, const char* first,
                  const char* second) {
  constexpr const char* kRule = "------------------------------";
  std::string out = formatText("%.60s: %s\n\n", awardName(request).c_str(), whose);
  appendFormat(out, "Place  %-30s %-30s  Score\n", first, second);
  appendFormat(out, "-----  %s %s ------\n", kRule, kRule);
  return out;
}

// The rows come best first and are read the other way round.
template <typename Row>
bool addRows(HandOut& report, const ReportRequest& request, const std::vector<Row>& rows) {
  std::string line;
  for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
    line.clear();
    appendRow(line, request, *row);
    report.add(line);
    if (report.isTooLong()) return false;
  }
  if (rows.empty()) report.add("       Nobody has a score.\n");
  return true;
}

}  // namespace

std::string announcersList(const Contest& contest) {
  HandOut report(
      "Announcer's List\n\n"
      "Each page is one award.  Read it from the top down: the winner comes last.\n\n");
  const auto requests = awardRequests(contest);
  if (!requests) {
    report.add("This contest has too many categories for this report.\n");
    return report.take();
  }
  for (const ReportRequest& request : *requests) {
    const AwardRows rows = awardRows(contest, request);
    report.beginPage(title(request, "individuals", "Contestant", "Team"));
    if (!addRows(report, request, rows.individuals)) break;
    report.beginPage(title(request, "teams", "Team", "Coach"));
    if (!addRows(report, request, rows.teams)) break;
  }
  return report.take();
}

}  // namespace scorvane
