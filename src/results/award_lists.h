// Which awards a contest gives, and the words that go with them on the stage.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "results/rankings.h"

namespace scorvane {

/// What to ask individualRows() and teamRows() for, one request for each award: every category that
/// has classes, but not all of them, by its overall score, named in the title; reasons and
/// questions where classes have them; overall. Those but the categories have no title. Nothing when
/// ranking so many categories would take longer than any real contest needs, as only a damaged file
/// asks for.
[[nodiscard]] std::optional<std::vector<ReportRequest>> awardRequests(const Contest& contest);

/// The lists that are printed for the stage, in the order of the menu: the High reports, of reasons
/// and questions where classes have them, then of each category that awardRequests() has the
/// individuals and the teams, as the Custom/Category Report asks for them. Nothing when
/// awardRequests() returns nothing.
[[nodiscard]] std::optional<std::vector<ReportRequest>> printedLists(const Contest& contest);
/// "High Individual Overall", "High Team Beef", the category's name cut to 40 bytes.
[[nodiscard]] std::string listName(const ReportRequest& request);

struct AwardRows {
  std::vector<IndividualRow> individuals;
  std::vector<TeamRow> teams;
};
/// The rows of individualRows() and teamRows() but those of who has nothing entered that the award
/// counts, and of teams where that goes for every member: nobody wins by staying away.
[[nodiscard]] AwardRows awardRows(const Contest& contest, const ReportRequest& request);

/// What an award is for: the category's name, "Reasons", "Questions" or "Overall".
[[nodiscard]] const std::string& awardName(const ReportRequest& request);

/// A place as it is read aloud: "1st", "2nd", "3rd", "11th", "112th".
[[nodiscard]] std::string placeInWords(int place);

/// What a tie was decided by, told with its winner, or that nothing decides it: "won on reasons,
/// 187 to 185", "tied with 3rd, no rule breaks it", or both parted by "; ". Empty when there is
/// nothing to tell.
[[nodiscard]] std::string tieInWords(const ReportRequest& request, const IndividualRow& row);
[[nodiscard]] std::string tieInWords(const ReportRequest& request, const TeamRow& row);

}  // namespace scorvane
