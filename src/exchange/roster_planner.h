// Finds the teams of a sheet their members' slots and numbers, row by row.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
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
    std::int32_t line = 0;  ///< in the sheet; 0 when it has not named the member so far
    std::uint32_t slot = 0;
    std::uint32_t name = 0;  ///< which of OpenTeam::present, or else of the planned members
    bool isPlanned = false;
  };

  // A team of the sheet while it is read.
  struct OpenTeam {
    PlannedTeam planned;
    std::vector<Slot> slots;
    std::vector<KnownMember> known;
    std::vector<std::string> present;  ///< who is in the contest's team
    std::size_t numberFields = 0;      ///< bytes of its line in the file that the numbers take
    std::int32_t line = 0;             ///< its first in the sheet
    std::string otherCoach;            ///< a second coach that was told of

    KnownMember* find(std::uint32_t hash, std::string_view name);
  };

  // Where a person of a row goes: into a slot, or to where he or she is already.
  struct Place {
    std::size_t slot = 0;
    std::uint32_t hash = 0;          ///< of the name
    KnownMember* present = nullptr;  ///< who is there already
  };

  [[nodiscard]] std::string nameOrKey(std::string_view team) const;
  [[nodiscard]] OpenTeam openTeam(const RosterRow& row, const std::string& nameOrKey) const;
  void openSlots(OpenTeam& team, const Team* present) const;
  [[nodiscard]] std::optional<std::string> problemOfNames(const RosterRow& row,
                                                          const OpenTeam& team) const;
  /// Finds places_ for the row's people; returns why there are none.
  [[nodiscard]] std::optional<std::string> findPlaces(const RosterRow& row, OpenTeam& team);
  [[nodiscard]] bool isFree(const Slot& slot) const {
    return slot.isFree && !(slot.hasNumber && taken_.contains(slot.number));
  }
  void join(const RosterRow& row, OpenTeam& team);
  void takeCoach(const RosterRow& row, OpenTeam& team);
  void giveNumbers(OpenTeam& team);
  void checkShownNames();

  const Contest& contest_;
  RosterPlan& plan_;
  std::int64_t firstNew_ = 0;  ///< the number that the next contestant gets
  std::int64_t next_ = 0;      ///< the same after what is planned so far
  std::size_t regularSlots_ = 0;
  std::unordered_map<std::string, const std::string*> present_;  ///< the contest's teams by key
  std::unordered_map<std::string, std::size_t> opened_;          ///< the sheet's, by nameOrKey()
  std::vector<OpenTeam> teams_;                                  ///< in the order of the sheet
  std::vector<Place> places_;                                    ///< of the people of a row
  std::set<ContestantNumber> taken_;  ///< numbers of the contest that were free
  std::string lastName_;              ///< the row before had this team
  std::optional<std::size_t> last_;
};

}  // namespace scorvane
