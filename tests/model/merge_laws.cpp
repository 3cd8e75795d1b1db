#include "tests/model/merge_laws.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>
#include <variant>

#include "model/contest_merge.h"
#include "model/numbering.h"
#include "model/reasons_places.h"
#include "model/roster.h"
#include "storage/contest_reader.h"
#include "storage/contest_writer.h"
#include "text/format.h"

namespace scorvane {

namespace {

class Editor {
 public:
  Editor(Contest& contest, const Choose& choose) : c_(contest), below_(choose) {}

  void edit() {
    const std::uint32_t kind = below_(40);
    if (kind < 4) return editSettings();
    if (kind < 6) return editCategories();
    if (kind < 9) return editClasses();
    if (kind < 15) return editTeams();
    if (kind < 20) return editPeople();
    if (kind < 23) return editReasonsOrder();
    for (std::uint32_t count = below_(4) + 1; count > 0; --count) score();
  }

 private:
  std::int32_t number(std::uint32_t end) { return static_cast<std::int32_t>(below_(end)); }
  std::string name(const char* kind, std::uint32_t end) {
    return formatText("%s %u", kind, below_(end));
  }
  ContestantNumber someone() {
    if (c_.contestantNames.empty()) return 101;
    return c_.contestantNames.begin()[number(static_cast<std::uint32_t>(c_.contestantNames.size()))]
        .first;
  }
  std::optional<std::string> someTeam() {
    if (c_.teams.empty()) return std::nullopt;
    return std::next(c_.teams.begin(), number(static_cast<std::uint32_t>(c_.teams.size())))->first;
  }

  void editSettings() {
    ContestSettings& s = c_.settings;
    switch (below_(7)) {
      case 0:
        s.contestName = name("Fair", 4);
        break;
      case 1:
        s.numToReport = number(9);
        s.reportPercent = below_(2) == 1;
        break;
      case 2:
        s.numGroups = 1 + number(6);
        break;
      case 3:
        s.numReasonsGroups = 1 + number(3);
        resetReasonsOrder(c_, reasonsRows(c_));
        break;
      case 4:
        s.numToScore = 1 + number(3);
        s.numPerTeam = s.numToScore + number(2);
        if (c_.teams.empty()) s.totalNumPerTeam = s.numPerTeam + number(3);
        s.numPerTeam = std::min(s.numPerTeam, s.totalNumPerTeam);
        s.numToScore = std::min(s.numToScore, s.numPerTeam);
        break;
      case 5:
        if (c_.teams.empty()) s.startNum = 101 + 100 * number(3);
        break;
      default:
        s.contestDate = name("March", 4);
    }
    regroupContestants(c_);
  }

  void editCategories() {
    const auto count = static_cast<std::uint32_t>(c_.categories.size());
    if (below_(2) == 0) {
      if (count == 1 && c_.categories[0] == kNoCategory) c_.categories.clear();
      c_.categories.push_back(name("Category", 6));
    } else if (c_.classes.count() == 0) {
      c_.categories.erase(c_.categories.begin() + number(count));
      if (c_.categories.empty()) c_.categories = {kNoCategory};
    } else if (count > 1) {
      c_.categories[1 + below_(count - 1)] = name("Category", 6);
    }
  }

  void editClasses() {
    JudgingClasses& classes = c_.classes;
    const auto count = static_cast<std::uint32_t>(classes.count());
    const std::uint32_t kind = below_(8);
    if (count == 0 || kind == 0) {
      classes.add(name("Class", 12), below_(2) == 0, below_(2) == 0,
                  static_cast<char>('A' + number(24)), {number(5), number(5), number(5)},
                  number(static_cast<std::uint32_t>(c_.categories.size())));
      return;
    }
    const std::uint32_t k = below_(count);
    if (kind == 1) classes.className[k] = name("Class", 12);
    if (kind == 2) classes.officialLetter[k] = static_cast<char>('A' + number(24));
    if (kind == 3) classes.cut2[k] = number(5);
    if (kind == 4) classes.reasonsFlag[k] = below_(2) == 0;
    if (kind == 5)
      classes.categoryIndex[k] = number(static_cast<std::uint32_t>(c_.categories.size()));
    if (kind == 6 && !hasScores(c_)) classes.remove(static_cast<std::int32_t>(k));
    if (kind == 7 && below_(6) == 0) {
      classes.clear();
      for (auto& entry : c_.scores) entry.second.clear();  // as in the file
    }
  }

  void addNewTeam() {
    const std::string team = name("Team", 9);
    if (c_.teams.contains(team)) return;
    std::vector<ContestantNumber> members;
    for (std::uint32_t i = below_(static_cast<std::uint32_t>(teamSlots(c_.settings)) + 1); i > 0;
         --i) {
      updateNextContestant(c_);
      members.push_back(c_.settings.nextContestantNum);
      addContestant(c_, members.back(), name("Person", 2000));
    }
    addTeam(c_, team, {name("Coach", 9), fillTeamSlots(c_, members)});
  }

  void editTeams() {
    const auto team = someTeam();
    const std::uint32_t kind = below_(12);
    if (!team || kind < 6) return addNewTeam();
    if (kind < 8) c_.teams[*team].coach = name("Coach", 9);
    if (kind == 8) replaceTeam(c_, *team, name("Team", 9), Team(c_.teams[*team]));
    if (kind == 9 || kind == 10) removeTeam(c_, *team);
    if (kind == 11 && below_(8) == 0) removeAllTeams(c_);
  }

  void editPeople() {
    if (c_.contestantNames.empty()) return;
    const ContestantNumber person = someone();
    switch (below_(4)) {
      case 0:
        return vacateNumber(c_, person);
      case 1:
        return removeContestant(c_, person);
      default:
        setContestant(c_, person, name("Person", 2000));
    }
  }

  void editReasonsOrder() {
    if (below_(2) == 0) {
      resetReasonsOrder(c_, reasonsRows(c_));
      std::array<std::int32_t, 3> next = {};
      for (const ContestantNumber speaker : unassignedSpeakers(c_)) {
        const std::int32_t group = number(static_cast<std::uint32_t>(c_.settings.numReasonsGroups));
        if (below_(4) > 0) {
          setReasonsPlace(c_, speaker, {group, next[static_cast<std::size_t>(group)]++});
        }
      }
    } else if (!c_.contestantNames.empty()) {
      const ContestantNumber speaker = someone();
      clearReasonsCells(c_, speaker);
      leaveReasonsOrder(c_, speaker);
    }
  }

  void score() {
    const ContestantNumber scored = someone();
    if (contestantName(c_, scored).empty() || c_.classes.count() == 0) return;
    ScoreRecord& record = c_.scores[scored][number(static_cast<std::uint32_t>(c_.classes.count()))];
    const std::uint32_t kind = below_(4);
    if (kind < 2) record.letter = "ABCDEFGHIJKLMNOPQRSTUVWXZ "[below_(26)];
    if (kind == 2) record.reasonsScore = number(51);
    if (kind == 3) record.questionsScore = number(51);
  }

  Contest& c_;
  const Choose& below_;
};

std::int32_t valueOf(const ScoreRecord& record, ScoreValue value) {
  return value == ScoreValue::letter    ? record.letter
         : value == ScoreValue::reasons ? record.reasonsScore
                                        : record.questionsScore;
}

// Looks for each score that a side entered, by its class (any, when two have its name) and by its
// number or the one it was given, by whichever side. Where that number is gone and the name is not
// unique, nothing but the slot of the team tells who it was.
bool hasEveryScoreOf(const Contest& base, const Contest& side, const Merge& merge,
                     const std::vector<NumberChange>& numberChanges,
                     ScoreRecord Sides<ScoreRecord>::*own) {
  std::vector<std::optional<std::int32_t>> before(static_cast<std::size_t>(side.classes.count()));
  std::vector<std::vector<std::int32_t>> after(before.size());
  for (const ClassMatch& match : matchClasses(base.classes, side.classes)) {
    if (match.there) before[static_cast<std::size_t>(*match.there)] = match.here;
  }
  for (const ClassMatch& match : matchClasses(side.classes, merge.contest.classes)) {
    if (!match.here) continue;
    auto& places = after[static_cast<std::size_t>(*match.here)];
    const auto isOnlyOne = [&](const std::vector<std::string>& names) {
      return std::count(names.begin(), names.end(), side.classes.name(*match.here)) <= 1;
    };
    const bool isClear = match.there && isOnlyOne(side.classes.className) &&
                         isOnlyOne(merge.contest.classes.className);
    if (isClear) places = {*match.there};
    for (std::int32_t k = 0; !isClear && k < merge.contest.classes.count(); ++k) {
      places.push_back(k);
    }
  }
  for (const auto& [number, records] : side.scores) {
    std::vector<ContestantNumber> numbers = {number};
    std::vector<ContestantNumber> bases = {number};
    for (const auto& [other, name] : base.contestantNames) {
      if (!name.empty() && name == contestantName(side, number)) bases.push_back(other);
    }
    for (const NumberChange& change : numberChanges) {
      if (change.from == number) numbers.push_back(change.to);
      if (change.to == number) numbers.push_back(change.from);
    }
    for (const auto& [other, name] : merge.contest.contestantNames) {
      if (!name.empty() && name == contestantName(side, number)) numbers.push_back(other);
    }
    if (!merge.contest.contestantNames.contains(number)) {
      for (const auto& [name, team] : side.teams) {
        const auto found = merge.contest.teams.find(name);
        for (std::size_t slot = 0; slot < team.members.size(); ++slot) {
          if (found == merge.contest.teams.end() || team.members[slot] != number) continue;
          if (slot < found->second.members.size()) numbers.push_back(found->second.members[slot]);
        }
      }
    }
    for (const auto& [k, record] : records) {
      const auto index = static_cast<std::size_t>(k);
      for (const ScoreValue value :
           {ScoreValue::letter, ScoreValue::reasons, ScoreValue::questions}) {
        const std::int32_t typed = valueOf(record, value);
        const auto isOld = [&](ContestantNumber n) {
          return valueOf(scoreRecord(base, n, before[index].value_or(-1)), value) == typed;
        };
        if (!isEntered(value, record) || std::any_of(bases.begin(), bases.end(), isOld)) continue;
        const auto isThere = [&](ContestantNumber n) {
          return std::any_of(after[index].begin(), after[index].end(), [&](std::int32_t place) {
            return valueOf(scoreRecord(merge.contest, n, place), value) == typed;
          });
        };
        const auto isListed = [&](const ContestantScore& score) {
          return score.value == value && valueOf(score.records.*own, value) == typed &&
                 std::find(numbers.begin(), numbers.end(), score.number) != numbers.end();
        };
        if (std::none_of(numbers.begin(), numbers.end(), isThere) &&
            std::none_of(merge.scores.begin(), merge.scores.end(), isListed)) {
          return false;
        }
      }
    }
  }
  return true;
}

bool isInTeam(const Contest& contest, const std::string& name) {
  return std::any_of(contest.teams.begin(), contest.teams.end(), [&](const auto& team) {
    const auto& members = team.second.members;
    return std::any_of(members.begin(), members.end(), [&](ContestantNumber number) {
      return contestantName(contest, number) == name;
    });
  });
}

// New people of a team have one afterwards, unless both sides put somebody into the same slot.
bool keepsTeamsOf(const Contest& base, const Contest& side, const Merge& merge) {
  const bool isListed =
      std::any_of(merge.values.begin(), merge.values.end(), [](const Difference& difference) {
        return difference.kind == DifferenceKind::team && difference.value.starts_with("member");
      });
  return isListed || std::all_of(side.teams.begin(), side.teams.end(), [&](const auto& team) {
           const auto& members = team.second.members;
           return std::all_of(members.begin(), members.end(), [&](ContestantNumber number) {
             const std::string& name = contestantName(side, number);
             return name.empty() || base.contestantNames.contains(number) || isInTeam(base, name) ||
                    isInTeam(merge.contest, name);
           });
         });
}

// Renamed classes and categories are known by their position only while there are as many, and
// those of one name by their order; a team that was renamed, by people who may have been renamed
// too.
bool isKnownByName(const Contest& base, const Contest& side, const Contest& merged) {
  const auto isKnown = [](const std::vector<std::string>& before,
                          const std::vector<std::string>& now,
                          const std::vector<std::string>& after) {
    const auto isUnclear = [&](const std::string& name) {
      return std::count(after.begin(), after.end(), name) > 1 ||
             std::count(now.begin(), now.end(), name) > 1;
    };
    if (before == after && now == after) return true;
    if (std::any_of(before.begin(), before.end(), isUnclear) ||
        std::any_of(now.begin(), now.end(), isUnclear)) {
      return false;
    }
    if (after.size() == before.size()) return now.size() == before.size() || after == before;
    const std::vector<ClassMatch> matches = matchNames(before, now, true);
    return std::all_of(matches.begin(), matches.end(), [&](const ClassMatch& match) {
      return !match.here || !match.there ||
             before[static_cast<std::size_t>(*match.here)] ==
                 now[static_cast<std::size_t>(*match.there)];
    });
  };
  const auto hasAll = [](const Contest& in, const Contest& of) {
    return std::all_of(of.teams.begin(), of.teams.end(),
                       [&](const auto& team) { return in.teams.contains(team.first); });
  };
  // A team that was given the name of another one, which was removed or renamed.
  const bool isOther = std::any_of(base.teams.begin(), base.teams.end(), [&](const auto& team) {
    const auto found = merged.teams.find(team.first);
    const auto& members = team.second.members;
    return found != merged.teams.end() &&
           std::find_first_of(members.begin(), members.end(), found->second.members.begin(),
                              found->second.members.end()) == members.end();
  });
  if (isOther || (!hasAll(merged, base) && !hasAll(base, merged))) return false;
  return isKnown(base.classes.className, side.classes.className, merged.classes.className) &&
         isKnown(base.categories, side.categories, merged.categories);
}

// People of one name are told apart by their numbers, and those of removed ones are given anew.
bool hasNamesakes(const Contest& contest) {
  std::set<std::string> seen;
  return std::any_of(contest.contestantNames.begin(), contest.contestantNames.end(),
                     [&](const auto& entry) {
                       return !entry.second.empty() && !seen.insert(entry.second).second;
                     });
}

// Whether somebody of the ancestor has another number.
bool hasNewNumbers(const Contest& base, const Contest& side) {
  std::map<std::string, ContestantNumber> numbers;
  for (const auto& [number, name] : base.contestantNames) numbers[name] = number;
  return std::any_of(
      side.contestantNames.begin(), side.contestantNames.end(), [&](const auto& entry) {
        const auto found = numbers.find(entry.second);
        return !entry.second.empty() && found != numbers.end() && found->second != entry.first;
      });
}

// A number in two teams, as where it was removed from one and given anew, is known as either's.
template <typename Counts>
bool sharesNumbers(const Contest& contest, const Counts& counts) {
  std::set<ContestantNumber> seen;
  return std::any_of(contest.teams.begin(), contest.teams.end(), [&](const auto& team) {
    const auto& members = team.second.members;
    return std::any_of(members.begin(), members.end(), [&](ContestantNumber number) {
      return !seen.insert(number).second && counts(number);
    });
  });
}

}  // namespace

void editAtRandom(Contest& contest, const Choose& choose) {
  Editor(contest, choose).edit();
}

Contest savedAndLoaded(Contest contest) {
  recomputeAllPlacingScores(contest);
  return std::get<Contest>(readContest(writeContest(contest)));
}

std::string brokenMergeLaw(const Contest& base, const Contest& ours, const Contest& theirs) {
  const auto isSettled = [](const Merge& m) {
    return m.values.empty() && m.scores.empty() && m.lostRemovals.empty();
  };
  const Merge here = mergeContests(base, base, theirs);
  if (!isSettled(here) || here.contest != theirs) return "what only they changed is theirs";
  const Merge there = mergeContests(base, ours, base);
  if (!isSettled(there) || there.contest != ours) return "what only we changed is ours";
  const Merge merge = mergeContests(base, ours, theirs);
  const Merge back = mergeContests(base, theirs, ours);
  const auto isClear = [](const Merge& m) {
    return m.values.empty() && m.scores.empty() && m.numbers.empty();
  };
  // Other numbers that one side gave are news for the other one only.
  const bool isRenumbered = merge.numbers.empty() != back.numbers.empty();
  if (!isRenumbered && isClear(merge) != isClear(back)) return "both sides find the same to differ";
  const auto any = [](ContestantNumber /*number*/) { return true; };
  const bool isShared = sharesNumbers(ours, any) || sharesNumbers(theirs, any);
  const auto isPerson = [&](ContestantNumber number) {
    return merge.contest.contestantNames.contains(number);
  };
  if (!isShared && sharesNumbers(merge.contest, isPerson)) return "nobody is in two teams";
  if (!isShared && isClear(merge) && isClear(back) && merge.contest != back.contest) {
    return "both sides merge alike";
  }
  // An older ancestor than what was read last knows less of new numbers, of those in two teams, of
  // what stayed and of an order of reasons that is as before without somebody removed.
  const auto hasOrderOfBase = [&base](const Contest& contest) {
    return std::all_of(
        contest.contestantNames.begin(), contest.contestantNames.end(), [&](const auto& entry) {
          return reasonsPlaceOf(contest, entry.first) == reasonsPlaceOf(base, entry.first);
        });
  };
  const bool isOrderAsBefore = hasOrderOfBase(merge.contest) && !hasOrderOfBase(theirs);
  const bool isAllKnown =
      !isOrderAsBefore && !isShared && !sharesNumbers(base, any) && merge.numbers.empty() &&
      !hasNewNumbers(base, ours) && !hasNewNumbers(base, theirs) && back.numbers.empty() &&
      merge.lostRemovals.empty() && !hasNamesakes(base) && !hasNamesakes(ours) &&
      !hasNamesakes(theirs) && isKnownByName(base, ours, merge.contest) &&
      isKnownByName(base, theirs, merge.contest);
  if (isAllKnown && mergeContests(base, merge.contest, theirs).contest != merge.contest) {
    return "merging twice changes nothing";
  }
  if (mergeContests(theirs, merge.contest, theirs).contest != merge.contest) {
    return "merging what was taken over changes nothing";
  }
  std::vector<NumberChange> numbers = merge.numbers;
  numbers.insert(numbers.end(), back.numbers.begin(), back.numbers.end());
  if (!hasEveryScoreOf(base, ours, merge, numbers, &Sides<ScoreRecord>::here) ||
      !hasEveryScoreOf(base, theirs, merge, numbers, &Sides<ScoreRecord>::there)) {
    return "every score typed is in the result or listed";
  }
  if (!keepsTeamsOf(base, ours, merge) || !keepsTeamsOf(base, theirs, merge)) {
    return "who is added with a team has one";
  }
  if (savedAndLoaded(merge.contest) != merge.contest) return "the result is as after loading";
  return {};
}

}  // namespace scorvane
