// Any bytes as a sheet of teams and contestants, for any contest. What is before "@@@@" is a
// contest file, or the wishes for an invented contest.
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <variant>

#include "exchange/roster_plan.h"
#include "fuzz/checks.h"
#include "storage/contest_reader.h"
#include "storage/contest_writer.h"
#include "text/decoding.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

Contest contestOf(std::string_view bytes) {
  auto reading = readContest(bytes);
  if (auto* contest = std::get_if<Contest>(&reading)) return std::move(*contest);
  const auto wish = [&bytes](std::size_t i, int end) {
    return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) % end : 0;
  };
  ContestPlan plan;
  plan.contestants = wish(0, 25);
  plan.perTeam = 1 + wish(1, 4);
  plan.alternates = wish(2, 3);
  plan.emptyPercent = 10 * wish(3, 8);
  plan.classes = wish(4, 3);
  return makeContest(plan);
}

void requireUnharmed(const Contest& before, const Contest& after) {
  for (const auto& [number, name] : before.contestantNames) {
    require(name.empty() || contestantName(after, number) == name, "nobody is renamed or removed");
  }
  for (const auto& [name, team] : before.teams) {
    const auto found = after.teams.find(name);
    require(found != after.teams.end(), "teams stay");
    require(team.coach.empty() || found->second.coach == team.coach, "coaches stay");
    for (std::size_t slot = 0; slot < team.members.size(); ++slot) {
      require(contestantName(before, team.members[slot]).empty() ||
                  found->second.members.at(slot) == team.members[slot],
              "members stay in their slots");
    }
  }
}

void requireAsPlanned(const RosterPlan& plan, const Contest& before, const Contest& after) {
  std::set<ContestantNumber> numbers;
  std::size_t people = 0;
  for (const PlannedTeam& planned : plan.teams) {
    const auto team = after.teams.find(planned.name);
    require(team != after.teams.end(), "planned teams are there");
    for (const PlannedMember& member : planned.members) {
      ++people;
      if (!member.isNew) continue;
      require(numbers.insert(member.number).second, "no number is given twice");
      require(contestantName(before, member.number).empty(), "the slot was free");
      require(contestantName(after, member.number) == member.name, "planned members are there");
      require(team->second.members.at(member.slot) == member.number,
              "in the slot that was planned");
    }
  }
  require(people == plan.contestants + plan.alternates, "the summary counts everybody");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::size_t mark = bytes.find("@@@@");
  const std::string_view sheet = mark == std::string_view::npos ? bytes : bytes.substr(mark + 4);
  const Contest before = contestOf(mark == std::string_view::npos ? "" : bytes.substr(0, mark));
  const RosterPlan plan = planRoster(sheet, before);
  require(planLines(plan, before).size() >=
              plan.problems.size() + plan.teams.size() + plan.remarks.size(),
          "all is told");
  Contest after = before;
  importRoster(after, plan);
  requireUnharmed(before, after);
  requireAsPlanned(plan, before, after);
  const std::string saved = writeContest(after);
  const Contest loaded = readAgain(saved);
  require(loaded.contestantNames == after.contestantNames, "contestants are saved whole");
  require(loaded.teams.size() == after.teams.size(), "teams are saved");
  for (const PlannedTeam& planned : plan.teams) {
    require(!planned.isNew || loaded.teams.at(planned.name) == after.teams.at(planned.name),
            "new teams are saved whole");
  }
  // A row that was left out may find room later, as when somebody it names as an alternate is a
  // regular member in a row below.
  require(!plan.problems.empty() || planRoster(sheet, loaded).changesNothing,
          "importing again changes nothing");
  // What an edit field gets is the same sheet.
  const RosterPlan pasted = planRoster(utf8OfFile(sheet), before);
  require(
      pasted.teams.size() == plan.teams.size() && pasted.problems.size() == plan.problems.size(),
      "the field shows what is in the file");
  return 0;
}

}  // namespace scorvane
