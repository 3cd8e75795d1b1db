#include "tools/contest_maker.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "model/new_contest.h"
#include "model/numbering.h"
#include "model/roster.h"
#include "tools/invented_names.h"

namespace scorvane {

namespace {

/// The same numbers on every machine and with every library.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : state_(seed) {}

  /// A number from 0 to `count` - 1.
  std::int32_t below(std::int32_t count) {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    mixed ^= mixed >> 31;
    return static_cast<std::int32_t>(mixed % static_cast<std::uint64_t>(count));
  }
  bool percent(std::int32_t chance) { return below(100) < chance; }
  template <std::size_t Size>
  std::string_view oneOf(const std::array<std::string_view, Size>& names) {
    return names[static_cast<std::size_t>(below(static_cast<std::int32_t>(Size)))];
  }

 private:
  std::uint64_t state_;
};

class Maker {
 public:
  explicit Maker(const ContestPlan& plan) : plan_(plan), dice_(plan.seed) {}

  Contest make() {
    contest_ = newContest();
    makeSettings();
    for (std::int32_t k = 0; k < plan_.classes; ++k) makeClass(k);
    for (std::int32_t slots = 0; slots < plan_.contestants;) {
      makeTeam();
      slots += contest_.settings.totalNumPerTeam;
    }
    for (const auto& [number, name] : contest_.contestantNames) handInCards(number, name);
    if (plan_.mistypedClass > 0 && plan_.mistypedClass <= plan_.classes) {
      mistypeOfficial(plan_.mistypedClass - 1);
    }
    placeReasonsTakers();
    updateNextContestant(contest_);
    return std::move(contest_);
  }

 private:
  void makeSettings() {
    ContestSettings& settings = contest_.settings;
    settings.contestName = plan_.contestName;
    settings.divisionName = plan_.divisionName;
    settings.contestDate = plan_.contestDate;
    settings.numPerTeam = plan_.perTeam;
    settings.totalNumPerTeam = plan_.perTeam + plan_.alternates;
    settings.numToScore = std::max(plan_.perTeam - 1, 1);
    settings.numGroups = plan_.groups;
    settings.numReasonsGroups = std::max(plan_.reasonsClasses, 1);
    contest_.groupLetters = makeGroupLetters(plan_.groups);
    for (std::int32_t i = 0; i < plan_.categories; ++i) {
      contest_.categories.emplace_back(kSpecies[static_cast<std::size_t>(i)].name);
    }
  }

  /// Whether class k is one of `count` that are spread evenly over all classes.
  [[nodiscard]] bool isSpread(std::int32_t k, std::int32_t count, std::int32_t shift) const {
    const std::int64_t place = (k + shift) % plan_.classes;
    return place * count / plan_.classes != (place + 1) * count / plan_.classes;
  }

  void makeClass(std::int32_t k) {
    const std::int32_t category = k % std::max(plan_.categories, 1);
    const auto round = static_cast<std::size_t>(k / std::max(plan_.categories, 1));
    const Species& species = kSpecies[static_cast<std::size_t>(category)];
    std::string name(species.classes[round % species.classes.size()]);
    if (round >= species.classes.size()) {
      name.append(" ").append(std::to_string(round / species.classes.size() + 1));
    }
    const bool reasons = isSpread(k, plan_.reasonsClasses, 0);
    const bool questions = !reasons && isSpread(k, plan_.questionsClasses, 1);
    contest_.classes.add(name, reasons, questions, static_cast<char>('A' + dice_.below(24)),
                         makeCuts(), category);
  }

  Cuts makeCuts() {
    for (;;) {
      const Cuts cuts = {1 + dice_.below(6), 1 + dice_.below(8), 1 + dice_.below(6)};
      const auto isLegal =
          validateCuts(static_cast<std::uint32_t>(cuts.cut1), static_cast<std::uint32_t>(cuts.cut2),
                       static_cast<std::uint32_t>(cuts.cut3));
      if (isLegal) return cuts;
    }
  }

  std::string person() {
    std::string name(dice_.oneOf(kFirstNames));
    return name.append(" ").append(dice_.oneOf(kLastNames));
  }

  std::string teamName() {
    const std::size_t index = contest_.teams.size();
    std::string name(kCounties[index % kCounties.size()]);
    const std::size_t round = index / kCounties.size();
    name += round % 2 == 0 ? " County 4-H" : " FFA";
    if (round >= 2) name.append(" ").append(std::to_string(round / 2 + 1));
    return name;
  }

  void makeTeam() {
    const ContestSettings& settings = contest_.settings;
    Team team;
    if (!dice_.percent(5)) team.coach = person();
    for (std::int32_t slot = 0; slot < settings.totalNumPerTeam; ++slot) {
      const ContestantNumber number = settings.startNum + made_++;
      const bool isEmpty = dice_.percent(slot < plan_.perTeam ? plan_.emptyPercent : 75);
      team.members.push_back(number);
      setContestant(contest_, number, isEmpty ? std::string() : person());
      contest_.reasonsPlace[number] = {};
    }
    contest_.teams.insert_or_assign(teamName(), std::move(team));
  }

  /// The official placing with some neighbours changed round.
  PlacingLetter placingNear(PlacingLetter official, std::int32_t skill) {
    auto order = orderOfLetter(official);
    for (int swaps = 0; swaps < 4 && !dice_.percent(skill); ++swaps) {
      const auto at = static_cast<std::size_t>(dice_.below(3));
      std::swap(order[at], order[at + 1]);
    }
    PlacingLetter letter = 'A';
    while (orderOfLetter(letter) != order) ++letter;
    return letter;
  }

  std::int32_t spokenScore(std::int32_t skill) {
    return std::clamp(24 + skill / 5 + dice_.below(17), 0, 50);
  }

  void handInCards(ContestantNumber number, const std::string& name) {
    ClassScores& records = contest_.scores[number];
    records.reserve(static_cast<std::size_t>(plan_.classes));
    const std::int32_t skill = 20 + dice_.below(60);
    const JudgingClasses& classes = contest_.classes;
    for (std::int32_t k = 0; k < plan_.classes; ++k) {
      ScoreRecord& record = records[k];
      if (name.empty() || isMissing()) continue;
      record.letter = placingNear(classes.official(k), skill);
      if (dice_.below(250) == 0) record.letter = kZeroLetter;
      record.placingScore = placingScore(record.letter, classes.official(k), classes.cuts(k));
      if (classes.hasReasons(k) && !isMissing()) record.reasonsScore = spokenScore(skill);
      if (classes.hasQuestions(k) && !isMissing()) record.questionsScore = spokenScore(skill);
    }
  }
  bool isMissing() { return plan_.missingPercent > 0 && dice_.percent(plan_.missingPercent); }

  // The other end of the alphabet has the animals the other way round.
  void mistypeOfficial(std::int32_t k) {
    PlacingLetter& official = contest_.classes.officialLetter.at(static_cast<std::size_t>(k));
    official = static_cast<PlacingLetter>('A' + 'X' - official);
    recomputeAllPlacingScores(contest_);
  }

  void placeReasonsTakers() {
    const std::int32_t groups = contest_.settings.numReasonsGroups;
    ReasonsOrder& order = contest_.reasonsOrder;
    order.reset(static_cast<std::int64_t>(contest_.contestantNames.size()), groups);
    if (plan_.reasonsClasses == 0) return;
    std::vector<ContestantNumber> takers;
    for (const auto& [number, name] : contest_.contestantNames) {
      if (!name.empty()) takers.push_back(number);
    }
    for (std::size_t i = takers.size(); i > 1; --i) {
      const auto other = static_cast<std::size_t>(dice_.below(static_cast<std::int32_t>(i)));
      std::swap(takers[i - 1], takers[other]);
    }
    std::vector<ReasonsOrder::Cells::Entry> cells;
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(takers.size()); ++i) {
      const ReasonsPlace place = {i % groups, i / groups};
      const ContestantNumber taker = takers[static_cast<std::size_t>(i)];
      contest_.reasonsPlace[taker] = place;
      cells.push_back({{place.group, place.position}, taker});
    }
    order.setCells(std::move(cells));
  }

  const ContestPlan& plan_;
  Dice dice_;
  Contest contest_;
  std::int32_t made_ = 0;
};

}  // namespace

Contest makeContest(const ContestPlan& plan) {
  return Maker(plan).make();
}

}  // namespace scorvane
