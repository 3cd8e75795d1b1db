#include "reports/listing_reports.h"

#include <vector>

#include "model/numbering.h"
#include "model/placing.h"
#include "model/team_index.h"
#include "reports/report_parts.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

// Member slots with a named contestant.
int countContestants(const Contest& contest) {
  int count = 0;
  for (const auto& [teamName, team] : contest.teams) {
    for (const ContestantNumber number : team.members) {
      if (!contestantName(contest, number).empty()) ++count;
    }
  }
  return count;
}

void appendTeamLine(std::string& out, const Contest& contest, const char* teamName,
                    const ListedMember& member) {
  const ContestantNumber number = member.contestant.number;
  appendFormat(out, "     %-21.21s   %3d%c  %-30.30s\n", teamName, number,
               groupOfContestant(contest, number), member.contestant.name->c_str());
}

void appendTeam(std::string& out, const Contest& contest, const std::string& teamName,
                const Team& team) {
  const std::vector<ContestantNumber>& members = team.members;
  const bool firstIsNamed = !members.empty() && !contestantName(contest, members[0]).empty();
  if (!firstIsNamed) appendFormat(out, "     %-21.21s\n", teamName.c_str());
  bool isFirst = firstIsNamed;
  for (ListedMember member : listedMembers(contest, team)) {
    // The team's own line shows its first member's name as it is, whatever numPerTeam.
    std::string marked;
    if (member.isAlternate && !isFirst) {
      marked = *member.contestant.name + " (alternate)";
      member.contestant.name = &marked;
    }
    appendTeamLine(out, contest, isFirst ? teamName.c_str() : "", member);
    isFirst = false;
  }
  appendFormat(out, "     %5.5sCoach: %-20.20s\n\n", "", team.coach.c_str());
}

}  // namespace

std::string classesReport(const Contest& contest) {
  const JudgingClasses& classes = contest.classes;
  std::string out = "     Classes Report\n\n\n";
  appendFormat(out, "     %5.5s\n", "Class");
  appendFormat(out, "     %5.5s %-50.50s %-15.15s\n", " No. ", "     Description", "   Category");
  appendFormat(out, "     %5.5s %-50.50s %15.15s\n", "-----", kFiftyHyphens, "---------------");
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    appendFormat(out, "     %3d   %-38.38s %s   %-15s\n", k + 1, classes.name(k).c_str(),
                 kindTag(classes, k), categoryName(contest, classes.category(k)).c_str());
    if (closeIfTooLong(out)) break;
  }
  return out;
}

std::string officialPlacingsReport(const Contest& contest) {
  const JudgingClasses& classes = contest.classes;
  std::string out = "     Official Placings Report\n\n\n";
  // The second field is right-aligned here only; it is blank, so nothing shows of it.
  appendFormat(out, "     %5.5s %50.50s %-8.8s %6.6s\n", "Class", " ", "Official", " ");
  appendFormat(out, "     %5.5s %-50.50s %-8.8s %6.6s\n", " No. ", "     Description", "Placing",
               " Cuts ");
  appendFormat(out, "     %5.5s %-50.50s %8.8s %6.6s\n", "-----", kFiftyHyphens, "--------",
               "------");
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    const char official = classes.official(k);
    const auto order = orderOfLetter(official);
    const auto [cut1, cut2, cut3] = classes.cuts(k);
    // The cuts carry no widths: one of 10 or more makes the row longer.
    appendFormat(out, "     %3d   %-38.38s %s  %d%d%d%d-%c    %d%d%d\n", k + 1,
                 classes.name(k).c_str(), kindTag(classes, k), order[0], order[1], order[2],
                 order[3], official, cut1, cut2, cut3);
  }
  return out;
}

std::string contestantsReport(const Contest& contest) {
  static const std::string noTeam;
  const TeamIndex teams(contest);
  // A number that no team holds counts to the last team that was looked through.
  const std::string* lastTeam = contest.teams.empty() ? &noTeam : &contest.teams.rbegin()->first;

  std::string out = formatText("     Contestant Report - %d Contestants - %d Teams\n\n",
                               countContestants(contest), static_cast<int>(contest.teams.size()));
  out += "      ##  Grp          Name                           Team\n";
  out += "     ---- --- ------------------------------ ------------------------------\n";
  const std::string* previousTeam = nullptr;
  std::int32_t position = 0;
  for (const auto& [number, name, scores] : listedContestants(contest)) {
    const std::string* team = teams.hasTeam(number) ? &teams.teamOf(number) : lastTeam;
    if (previousTeam != nullptr && team != previousTeam) {
      out += "\n";
      position = 0;
    }
    const char group = groupOfContestant(contest, number);
    if (position < contest.settings.numPerTeam) {
      appendFormat(out, "     %4d  %c   %-30.30s %-30.30s\n", number, group, name->c_str(),
                   team->c_str());
    } else {
      appendFormat(out, "     %4d  %c   %-23.23s (alt)  %-30.30s\n", number, group, name->c_str(),
                   team->c_str());
    }
    ++position;
    previousTeam = team;
  }
  return out;
}

std::string teamReport(const Contest& contest) {
  std::string out = formatText("     Teams and Contestants - %d Contestants - %d Teams\n\n",
                               countContestants(contest), static_cast<int>(contest.teams.size()));
  out += "           Team              Num            Team Members\n";
  out += "     ---------------------  -----  ------------------------------------------\n";
  for (const auto& [teamName, team] : contest.teams) {
    appendTeam(out, contest, teamName, team);
    if (closeIfTooLong(out)) break;
  }
  return out;
}

}  // namespace scorvane
