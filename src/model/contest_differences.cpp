#include "model/contest_differences.h"

#include <algorithm>
#include <limits>
#include <map>
#include <string_view>
#include <tuple>
#include <utility>

#include "model/numbering.h"
#include "text/format.h"

namespace scorvane {

namespace {

// Calls visit(key, value here, value there), null where it is missing, for each key of two maps.
template <typename Map, typename Visit>
void walkBoth(const Map& here, const Map& there, Visit visit) {
  auto a = here.begin();
  auto b = there.begin();
  while (a != here.end() || b != there.end()) {
    const bool onlyHere = b == there.end() || (a != here.end() && a->first < b->first);
    const bool onlyThere = a == here.end() || (b != there.end() && b->first < a->first);
    visit(onlyThere ? b->first : a->first, onlyThere ? nullptr : &a->second,
          onlyHere ? nullptr : &b->second);
    if (!onlyThere) ++a;
    if (!onlyHere) ++b;
  }
}

std::string letterText(PlacingLetter letter) {
  if (letter == kNoLetter) return {};
  if (!isOrderLetter(letter)) return std::string(1, letter);
  const auto order = orderOfLetter(letter);
  return formatText("%c (%d,%d,%d,%d)", letter, order[0], order[1], order[2], order[3]);
}

std::string cutsText(const Cuts& cuts) {
  return formatText("%d,%d,%d", cuts.cut1, cuts.cut2, cuts.cut3);
}

std::string placeText(const ReasonsPlace& place) {
  if (!place.isAssigned()) return "not assigned";
  return formatText("group %d, position %d", place.group + 1, place.position + 1);
}

std::string membersText(const Team& team) {
  std::string text;
  for (const ContestantNumber number : team.members) {
    text += (text.empty() ? "" : ", ") + std::to_string(number);
  }
  return text.empty() ? "no members" : text;
}

std::string nameText(const std::string* name) {
  if (name == nullptr) return {};
  return name->empty() ? kNoName : *name;
}

struct Setting {
  const char* name;
  std::string (*text)(const ContestSettings& settings);
};

using Settings = const ContestSettings&;
constexpr Setting kSettings[] = {
    {"contest name", [](Settings s) { return s.contestName; }},
    {"division name", [](Settings s) { return s.divisionName; }},
    {"contest date", [](Settings s) { return s.contestDate; }},
    {"starting number", [](Settings s) { return std::to_string(s.startNum); }},
    {"number to report",
     [](Settings s) { return std::to_string(s.numToReport) + (s.reportPercent ? "%" : ""); }},
    {"number of groups", [](Settings s) { return std::to_string(s.numGroups); }},
    {"number of reasons takers", [](Settings s) { return std::to_string(s.numReasonsGroups); }},
    {"team members to score", [](Settings s) { return std::to_string(s.numToScore); }},
    {"contestants per team", [](Settings s) { return std::to_string(s.numPerTeam); }},
    {"total number per team", [](Settings s) { return std::to_string(s.totalNumPerTeam); }},
};

// A contest without categories is saved with the placeholder.
std::vector<std::string> savedCategories(const Contest& contest) {
  return contest.categories.empty() ? std::vector<std::string>{kNoCategory} : contest.categories;
}

std::int32_t valueOf(ScoreValue value, const ScoreRecord& record) {
  switch (value) {
    case ScoreValue::letter:
      return record.letter;
    case ScoreValue::reasons:
      return record.reasonsScore;
    case ScoreValue::questions:
      return record.questionsScore;
    case ScoreValue::placingScore:
      break;
  }
  return record.placingScore;
}

class Comparison {
 public:
  Comparison(const Contest& here, const Contest& there) : here_(here), there_(there) {
    found_.classes = matchClasses(here.classes, there.classes);
  }

  ContestDifferences run() {
    compareSettings();
    compareCategories();
    for (const ClassMatch& match : found_.classes) compareClass(match);
    walkBoth(here_.teams, there_.teams,
             [this](const std::string& name, const Team* here, const Team* there) {
               compareTeam("team " + name, here, there);
             });
    walkBoth(here_.contestantNames, there_.contestantNames,
             [this](ContestantNumber number, const std::string* here, const std::string* there) {
               compareContestant(number, here, there);
             });
    for (const auto& entry : here_.contestantNames) compareReasonsOrder(entry.first);
    compareScores();
    return std::move(found_);
  }

 private:
  void add(DifferenceKind kind, const std::string& subject, std::string value, std::string here,
           std::string there) {
    if (here == there) return;
    found_.values.push_back({kind, subject, std::move(value), {std::move(here), std::move(there)}});
  }

  void compareSettings() {
    for (const Setting& setting : kSettings) {
      add(DifferenceKind::setting, "", setting.name, setting.text(here_.settings),
          setting.text(there_.settings));
    }
  }

  void compareCategories() {
    const std::vector<std::string> here = savedCategories(here_), there = savedCategories(there_);
    std::map<std::string, Sides<int>> counts;
    for (const std::string& name : here) ++counts[name].here;
    for (const std::string& name : there) ++counts[name].there;
    const std::size_t before = found_.values.size();
    for (const auto& [name, count] : counts) {
      if (count.here == count.there) continue;
      add(DifferenceKind::category, "category " + name, "", count.here == 0 ? "" : name,
          count.there == 0 ? "" : name);
    }
    if (found_.values.size() == before) {
      add(DifferenceKind::category, "categories", "order", joinedNames(here), joinedNames(there));
    }
  }

  void compareClass(const ClassMatch& match) {
    const JudgingClasses& a = here_.classes;
    const JudgingClasses& b = there_.classes;
    const std::int32_t i = match.here.value_or(-1), j = match.there.value_or(-1);
    const auto value = [&, subject = formatText("class %d", (match.here ? i : j) + 1)](
                           const char* name, std::string here, std::string there) {
      add(DifferenceKind::judgedClass, subject, name, std::move(here), std::move(there));
    };
    if (!match.here || !match.there) {
      const auto shown = [](const JudgingClasses& classes, std::int32_t k) {
        return k < 0 ? "" : classes.name(k).empty() ? kNoName : classes.name(k);
      };
      value("", shown(a, i), shown(b, j));
      return;
    }
    const auto yesOrNo = [](bool flag) { return flag ? "Yes" : "No"; };
    value("number", std::to_string(i + 1), std::to_string(j + 1));
    value("name", a.name(i), b.name(j));
    value("reasons", yesOrNo(a.hasReasons(i)), yesOrNo(b.hasReasons(j)));
    value("questions", yesOrNo(a.hasQuestions(i)), yesOrNo(b.hasQuestions(j)));
    value("official placing", letterText(a.official(i)), letterText(b.official(j)));
    value("cuts", cutsText(a.cuts(i)), cutsText(b.cuts(j)));
    value("category", categoryName(here_, a.category(i)), categoryName(there_, b.category(j)));
  }

  void compareTeam(const std::string& subject, const Team* here, const Team* there) {
    if (here == nullptr || there == nullptr) {
      add(DifferenceKind::team, subject, "", here == nullptr ? "" : membersText(*here),
          there == nullptr ? "" : membersText(*there));
      return;
    }
    add(DifferenceKind::team, subject, "coach", here->coach, there->coach);
    const auto memberOf = [](const Team& team, std::size_t slot) {
      return slot < team.members.size() ? std::to_string(team.members[slot]) : "";
    };
    const std::size_t slots = std::max(here->members.size(), there->members.size());
    for (std::size_t slot = 0; slot < slots; ++slot) {
      add(DifferenceKind::team, subject, "member " + std::to_string(slot + 1),
          memberOf(*here, slot), memberOf(*there, slot));
    }
  }

  void compareContestant(ContestantNumber number, const std::string* here,
                         const std::string* there) {
    const bool isOnBothSides = here != nullptr && there != nullptr;
    add(DifferenceKind::contestant, contestantText(number), isOnBothSides ? "name" : "",
        nameText(here), nameText(there));
  }

  void compareReasonsOrder(ContestantNumber number) {
    if (contestantName(here_, number).empty() || contestantName(there_, number).empty()) return;
    add(DifferenceKind::reasonsOrder, contestantText(number), "reasons order",
        placeText(reasonsPlaceOf(here_, number)), placeText(reasonsPlaceOf(there_, number)));
  }

  std::string contestantText(ContestantNumber number) const {
    const std::string& here = contestantName(here_, number);
    const std::string& name = here.empty() ? contestantName(there_, number) : here;
    return std::to_string(number) + (name.empty() ? "" : ' ' + name);
  }

  void compareScores() {
    for (const auto& [here, there] : found_.classes) {
      sameRule_.push_back(here && there &&
                          here_.classes.official(*here) == there_.classes.official(*there) &&
                          here_.classes.cuts(*here) == there_.classes.cuts(*there));
    }
    walkBoth(here_.contestantNames, there_.contestantNames,
             [this](ContestantNumber number, const std::string* here, const std::string* there) {
               compareCards(number, here == nullptr ? nullptr : here_.scores.find(number),
                            there == nullptr ? nullptr : there_.scores.find(number));
             });
    sortInOrderOfCards();
  }

  void compareCards(ContestantNumber number, const ClassScores* here, const ClassScores* there) {
    static const ScoreRecord blank;
    const auto recordOf = [](const ClassScores* records, std::optional<std::int32_t> index) {
      const ScoreRecord* record = records != nullptr && index ? records->find(*index) : nullptr;
      return record == nullptr ? &blank : record;
    };
    for (std::size_t k = 0; k < found_.classes.size(); ++k) {
      compareCard(k, number, *recordOf(here, found_.classes[k].here),
                  *recordOf(there, found_.classes[k].there));
    }
  }

  void compareCard(std::size_t match, ContestantNumber number, const ScoreRecord& here,
                   const ScoreRecord& there) {
    for (const ScoreValue value :
         {ScoreValue::letter, ScoreValue::reasons, ScoreValue::questions}) {
      const bool isHere = isEntered(value, here), isThere = isEntered(value, there);
      const bool differs = valueOf(value, here) != valueOf(value, there);
      ScoreCounts& counts = found_.counts;
      if (isHere && isThere) ++counts.onBothSides;
      if (isHere && isThere && differs) ++counts.differing;
      if (isHere && !isThere) ++counts.onlyOn.here;
      if (!isHere && isThere) ++counts.onlyOn.there;
      if (differs) found_.scores.push_back({match, value, number, {here, there}});
    }
    if (here.letter == there.letter && here.placingScore != there.placingScore &&
        sameRule_[match]) {
      found_.scores.push_back({match, ScoreValue::placingScore, number, {here, there}});
    }
  }

  void sortInOrderOfCards() {
    const auto pile = [this](const ScoreDifference& score) {
      const Contest& contest = here_.contestantNames.contains(score.number) ? here_ : there_;
      return std::tuple(score.classMatch, score.value,
                        cardPosition(contest, score.value, score.number));
    };
    using Pile = decltype(pile(ScoreDifference{}));
    std::vector<std::pair<Pile, ScoreDifference>> piled;
    piled.reserve(found_.scores.size());
    for (const ScoreDifference& score : found_.scores) piled.emplace_back(pile(score), score);
    std::sort(piled.begin(), piled.end(),
              [](const auto& a, const auto& b) { return a.first < b.first; });
    std::transform(piled.begin(), piled.end(), found_.scores.begin(),
                   [](const auto& entry) { return entry.second; });
  }

  const Contest& here_;
  const Contest& there_;
  std::vector<bool> sameRule_;  ///< by class match: the same letter earns the same placing score
  ContestDifferences found_;
};

}  // namespace

std::string joinedNames(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
  return text;
}

CardPosition cardPosition(const Contest& contest, ScoreValue value, ContestantNumber number) {
  if (value != ScoreValue::reasons) {
    return {groupOfLetter(groupOfContestant(contest, number)), 0, number};
  }
  const ReasonsPlace place = reasonsPlaceOf(contest, number);
  const std::int32_t last = std::numeric_limits<std::int32_t>::max();
  return {place.isAssigned() ? place.group : last, place.position, number};
}

void sortAsCardsLie(const Contest& contest, std::vector<ContestantScore>& scores) {
  const auto position = [&](const ContestantScore& score) {
    return std::tuple(score.classIndex, score.value,
                      cardPosition(contest, score.value, score.number));
  };
  std::sort(scores.begin(), scores.end(), [&](const ContestantScore& a, const ContestantScore& b) {
    return position(a) < position(b);
  });
}

bool isEntered(ScoreValue value, const ScoreRecord& record) {
  return valueOf(value, record) != (value == ScoreValue::letter ? kNoLetter : 0);
}

std::string scoreText(ScoreValue value, const ScoreRecord& record) {
  if (value == ScoreValue::letter) return letterText(record.letter);
  const bool isShown = value == ScoreValue::placingScore || isEntered(value, record);
  return isShown ? std::to_string(valueOf(value, record)) : "";
}

std::vector<ClassMatch> matchNames(const std::vector<std::string>& here,
                                   const std::vector<std::string>& there, bool byPosition) {
  std::map<std::string_view, std::vector<std::int32_t>> left;  // of each name, the first one last
  for (auto k = static_cast<std::int32_t>(there.size()) - 1; k >= 0; --k) {
    left[there[static_cast<std::size_t>(k)]].push_back(k);
  }
  std::vector<bool> isMatched(there.size());
  std::vector<ClassMatch> matches;
  for (const std::string& name : here) {
    matches.push_back({static_cast<std::int32_t>(matches.size()), std::nullopt});
    const auto found = left.find(name);
    if (found == left.end() || found->second.empty()) continue;
    matches.back().there = found->second.back();
    isMatched[static_cast<std::size_t>(found->second.back())] = true;
    found->second.pop_back();
  }
  for (std::size_t k = 0; k < there.size(); ++k) {
    if (isMatched[k]) continue;
    const auto index = static_cast<std::int32_t>(k);
    if (byPosition && here.size() == there.size() && !matches[k].there) {
      matches[k].there = index;
    } else {
      matches.push_back({std::nullopt, index});
    }
  }
  return matches;
}

std::vector<ClassMatch> matchClasses(const JudgingClasses& here, const JudgingClasses& there) {
  return matchNames(here.className, there.className, true);
}

ContestDifferences contestDifferences(const Contest& here, const Contest& there) {
  return Comparison(here, there).run();
}

}  // namespace scorvane
