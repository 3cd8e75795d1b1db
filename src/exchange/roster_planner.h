// Finds the teams of a sheet their members' slots and numbers, row by row.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "exchange/roster_plan.h"
#include "model/contest.h"

namespace scorvane {

/// A row of the sheet, as far as it matters.
struct RosterRow {
  std::int32_t line = 0;
  std::string_view team;
  std::string_view coach;
  struct Person {
    std::string_view name;
    bool isAlternate = false;
  };
  std::vector<Person> people;
};

/// Rows that can be followed come into the plan, others become its problems.
class RosterPlanner {
 public:
  RosterPlanner(const Contest& contest, RosterPlan& plan);

  /// A row with a team.
  void add(const RosterRow& row);
  void refuse(std::int32_t line, std::string problem) {
    plan_.problems.push_back({line, std::move(problem)});
  }
  void remark(std::int32_t line, std::string text) {
    plan_.remarks.push_back({line, std::move(text)});
  }
  void finish();

 private:
  struct Slot {
    ContestantNumber number = 0;
    bool isFree = true;
    bool hasNumber = false;  ///< one of its own; else it gets the next one
  };

  // A member who is in the contest's team, or was in a row of the sheet.
  struct KnownMember {
    std::uint32_t hash = 0;
    std::string name;
    std::size_t slot = 0;
    std::int32_t line = 0;  ///< in the sheet; 0 when it has not named the member so far
  };

  // A team of the sheet while it is read.
  struct OpenTeam {
    PlannedTeam planned;
    std::vector<Slot> slots;
    std::vector<KnownMember> known;
    std::size_t numberFields = 0;  ///< bytes of its line in the file that the numbers take
    std::int32_t line = 0;         ///< its first in the sheet
    std::string otherCoach;        ///< a second coach that was told of
  };

  // Where the people of a row go: into slots, or to where they are already.
  struct Places {
    std::vector<std::pair<std::size_t, bool>> slots;  ///< and whether the person is new there
    std::optional<std::string> problem;
  };

  [[nodiscard]] std::string nameOrKey(std::string_view team) const;
  [[nodiscard]] OpenTeam openTeam(const RosterRow& row, const std::string& nameOrKey) const;
  void openSlots(OpenTeam& team, const Team* present) const;
  [[nodiscard]] std::optional<std::string> problemOfNames(const RosterRow& row,
                                                          const OpenTeam& team) const;
  [[nodiscard]] Places placesFor(const RosterRow& row, const OpenTeam& team) const;
  [[nodiscard]] bool isFree(const Slot& slot) const {
    return slot.isFree && !(slot.hasNumber && taken_.contains(slot.number));
  }
  void join(const RosterRow& row, OpenTeam& team, const Places& places);
  void takeCoach(const RosterRow& row, OpenTeam& team);
  void giveNumbers(OpenTeam& team);
  void checkShownNames();

  const Contest& contest_;
  RosterPlan& plan_;
  std::int64_t firstNew_ = 0;  ///< the number that the next contestant gets
  std::int64_t next_ = 0;      ///< the same after what is planned so far
  std::size_t regularSlots_ = 0;
  std::map<std::string, const std::string*> present_;  ///< the contest's teams by key
  std::map<std::string, std::size_t> opened_;          ///< the sheet's teams by nameOrKey()
  std::vector<OpenTeam> teams_;                        ///< in the order of the sheet
  std::set<ContestantNumber> taken_;                   ///< numbers of the contest that were free
  std::string lastName_;                               ///< the row before had this team
  std::optional<std::size_t> last_;
};

}  // namespace scorvane
