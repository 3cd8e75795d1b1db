#include "model/contest_merge.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "model/class_lists.h"
#include "model/merge_order.h"
#include "model/merge_values.h"
#include "model/numbering.h"
#include "model/reasons_places.h"
#include "text/format.h"

namespace scorvane {

namespace {

using Index = std::optional<std::int32_t>;

// Without the placeholder, which is no category.
std::vector<std::string> knownCategories(const Contest& contest) {
  return hasCategories(contest) ? contest.categories : std::vector<std::string>{};
}

template <typename Value>
std::string textOf(const Value& value) {
  return std::to_string(value);
}
std::string textOf(const std::string& value) {
  return value;
}

class ContestMerge {
 public:
  ContestMerge(const Contest& base, const Contest& ours, const Contest& theirs)
      : state_({&base, &ours, &theirs}),
        categoryLists_{knownCategories(base), knownCategories(ours), knownCategories(theirs)},
        categories_({&categoryLists_[kBase], &categoryLists_[kOurs], &categoryLists_[kTheirs]}) {}

  Merge run() {
    state_.merge.contest.settings = in(kOurs).settings;
    mergeSettings();
    keepChangedClasses();
    mergeCategories();
    mergeClasses();
    mergeRoster(state_);
    mergeReasonsOrder(state_);
    mergeScores();
    finish();
    return std::move(state_.merge);
  }

 private:
  [[nodiscard]] const Contest& in(Side side) const { return *state_.contests[side]; }
  Contest& result() { return state_.merge.contest; }

  template <typename Value>
  void mergeSetting(const char* name, Value ContestSettings::*value) {
    const auto of = [&](Side side) -> const Value& { return in(side).settings.*value; };
    result().settings.*value = mergedValue(&of(kBase), of(kOurs), of(kTheirs), [&] {
      state_.differs(DifferenceKind::setting, "", name, textOf(of(kOurs)), textOf(of(kTheirs)));
    });
  }

  // Settings that count together, as one value.
  template <typename Tie, typename Text>
  void mergeSettingsTogether(const char* name, Tie tie, Text text) {
    auto base = in(kBase).settings, ours = in(kOurs).settings, theirs = in(kTheirs).settings;
    const auto baseValues = tie(base), oursValues = tie(ours), theirsValues = tie(theirs);
    tie(result().settings) = mergedValue(&baseValues, oursValues, theirsValues, [&] {
      state_.differs(DifferenceKind::setting, "", name, text(ours), text(theirs));
    });
  }

  void mergeSettings() {
    mergeSetting("contest name", &ContestSettings::contestName);
    mergeSetting("division name", &ContestSettings::divisionName);
    mergeSetting("contest date", &ContestSettings::contestDate);
    mergeSetting("starting number", &ContestSettings::startNum);
    mergeSettingsTogether(
        "number to report",
        [](ContestSettings& s) { return std::tie(s.numToReport, s.reportPercent); },
        [](const ContestSettings& s) {
          return std::to_string(s.numToReport) + (s.reportPercent ? "%" : "");
        });
    mergeSetting("number of groups", &ContestSettings::numGroups);
    mergeSettingsTogether(
        "team sizes",
        [](ContestSettings& s) { return std::tie(s.numToScore, s.numPerTeam, s.totalNumPerTeam); },
        teamSizesText);
    for (const Side side : {kOurs, kTheirs}) keepRoomForAdded(side);
  }

  static std::string teamSizesText(const ContestSettings& settings) {
    return formatText("%d of %d, %d in all", settings.numToScore, settings.numPerTeam,
                      settings.totalNumPerTeam);
  }

  // What one side set up must suit the people that the other side has added meanwhile.
  void keepRoomForAdded(Side side) {
    ContestSettings& merged = result().settings;
    const ContestSettings& own = in(side).settings;
    const auto& names = in(side).contestantNames;
    const bool startsTooLate =
        own.startNum < merged.startNum &&
        std::any_of(names.lowerBound(own.startNum), names.lowerBound(merged.startNum),
                    [&](const auto& entry) { return isAdded(side, entry.first); });
    if (startsTooLate) {
      state_.differs(DifferenceKind::setting, "", "starting number",
                     std::to_string(in(kOurs).settings.startNum),
                     std::to_string(in(kTheirs).settings.startNum));
      merged.startNum = own.startNum;
    }
    const std::size_t slots = teamSlots(merged);
    const bool isTooSmall =
        std::any_of(in(side).teams.begin(), in(side).teams.end(), [&](const auto& team) {
          const auto& members = team.second.members;
          return std::any_of(
              members.begin() + static_cast<std::ptrdiff_t>(std::min(slots, members.size())),
              members.end(), [&](ContestantNumber number) {
                return isAdded(side, number) && isSomebody(side, number);
              });
        });
    if (!isTooSmall) return;
    state_.differs(DifferenceKind::setting, "", "team sizes", teamSizesText(in(kOurs).settings),
                   teamSizesText(in(kTheirs).settings));
    merged.numToScore = own.numToScore;
    merged.numPerTeam = own.numPerTeam;
    merged.totalNumPerTeam = own.totalNumPerTeam;
  }

  [[nodiscard]] bool isAdded(Side side, ContestantNumber number) const {
    const std::size_t* person = state_.roster.personOf[side].find(number);
    return person != nullptr && !state_.roster.people[*person][kBase];
  }

  // Named or scored.
  [[nodiscard]] bool isSomebody(Side side, ContestantNumber number) const {
    const std::size_t* person = state_.roster.personOf[side].find(number);
    return person != nullptr && state_.isChanged(side, *person);
  }

  // The element of a class's category; nothing for none.
  [[nodiscard]] std::optional<std::size_t> categoryOf(Side side, std::int32_t index) const {
    const auto& elements = categories_.elementOf[side];
    if (elements.empty()) return std::nullopt;
    const auto category = static_cast<std::size_t>(in(side).classes.category(index));
    return elements[category < elements.size() ? category : 0];
  }

  [[nodiscard]] bool isClassChanged(Side side, std::size_t judgedClass) const {
    const Three<std::int32_t>& element = state_.classes.elements[judgedClass];
    const std::int32_t i = *element[kBase], j = *element[side];
    const JudgingClasses& a = in(kBase).classes;
    const JudgingClasses& b = in(side).classes;
    if (a.name(i) != b.name(j) || a.hasReasons(i) != b.hasReasons(j) ||
        a.hasQuestions(i) != b.hasQuestions(j) || a.official(i) != b.official(j) ||
        a.cuts(i) != b.cuts(j) || categoryOf(kBase, i) != categoryOf(side, j)) {
      return true;
    }
    for (std::size_t person = 0; person < state_.roster.people.size(); ++person) {
      if (state_.isScored(side, person, judgedClass)) return true;
    }
    return false;
  }

  void keepChangedClasses() {
    MergedList& classes = state_.classes;
    for (std::size_t id = 0; id < classes.elements.size(); ++id) {
      const Three<std::int32_t>& element = classes.elements[id];
      if (!element[kBase] || (element[kOurs] && element[kTheirs])) continue;
      const Side side = element[kOurs] ? kOurs : kTheirs;
      classes.stays[id] = element[side] && isClassChanged(side, id);
      if (!classes.stays[id]) continue;
      state_.merge.lostRemovals.push_back({DifferenceKind::judgedClass,
                                           "class " + in(side).classes.name(*element[side]),
                                           side == kTheirs});
    }
  }

  // Stores the order; of what both sides added the name decides.
  template <typename Name>
  void arrange(MergedList& list, DifferenceKind kind, const char* subject, Name namesOn) {
    const auto anyName = [&](std::size_t id) -> const std::string& {
      const Side side = list.elements[id][kOurs] ? kOurs : kTheirs;
      return namesOn(side)[static_cast<std::size_t>(*list.elements[id][side])];
    };
    MergedOrder order = mergedOrder(list.elements, list.stays, [&](std::size_t a, std::size_t b) {
      return anyName(a) < anyName(b);
    });
    list.arrange(std::move(order.elements));
    if (!order.differs) return;
    state_.differs(kind, subject, "order", joinedNames(namesOn(kOurs)),
                   joinedNames(namesOn(kTheirs)));
  }

  // Merges a value of an element; what is on one side only is that side's.
  template <typename Of, typename Report>
  auto mergeElement(const Three<std::int32_t>& element, Of of, Report report) {
    using Value = decltype(of(kOurs, std::int32_t{}));
    if (!element[kOurs]) return of(kTheirs, *element[kTheirs]);
    Value ours = of(kOurs, *element[kOurs]);
    if (!element[kTheirs]) return ours;
    const Value theirs = of(kTheirs, *element[kTheirs]);
    if (!element[kBase]) {
      return mergedValue<Value>(nullptr, ours, theirs, [&] { report(ours, theirs); });
    }
    const Value base = of(kBase, *element[kBase]);
    return mergedValue(&base, ours, theirs, [&] { report(ours, theirs); });
  }

  // A category that one side removed stays when the other one gave it to a class.
  void mergeCategories() {
    for (std::size_t id = 0; id < categories_.elements.size(); ++id) {
      const Three<std::int32_t>& element = categories_.elements[id];
      if (!element[kBase] || (element[kOurs] && element[kTheirs])) continue;
      const Side side = element[kOurs] ? kOurs : kTheirs;
      categories_.stays[id] = element[side] && isGivenAnew(side, id);
    }
    const auto namesOn = [this](Side side) -> const std::vector<std::string>& {
      return categoryLists_[side];
    };
    arrange(categories_, DifferenceKind::category, "categories", namesOn);
    for (const std::size_t id : categories_.order) {
      const auto of = [&](Side side, std::int32_t index) {
        return categoryLists_[side][static_cast<std::size_t>(index)];
      };
      result().categories.push_back(mergeElement(
          categories_.elements[id], of, [&](const std::string& ours, const std::string& theirs) {
            state_.differs(DifferenceKind::category, "category " + ours, "name", ours, theirs);
          }));
    }
    if (!categoriesFit(result().categories)) keepOurCategories();
    if (result().categories.empty()) result().categories = {kNoCategory};
  }

  // What both sides have has no room in the file: theirs is left out and listed.
  void keepOurCategories() {
    const auto nameOn = [this](Side side, Index index) {
      return index ? categoryLists_[side][static_cast<std::size_t>(*index)] : std::string();
    };
    for (const std::size_t id : categories_.order) {
      const auto& [base, ours, theirs] = categories_.elements[id];
      const std::string ourName = nameOn(kOurs, ours), theirName = nameOn(kTheirs, theirs);
      const bool isOurs = ourName == theirName || (ours && base && ourName != nameOn(kBase, base));
      if (!theirs || isOurs) continue;
      state_.differs(DifferenceKind::category, "category " + theirName, ours ? "name" : "", ourName,
                     theirName);
    }
    categories_.arrange(categories_.elementOf[kOurs]);
    result().categories = categoryLists_[kOurs];
  }

  [[nodiscard]] bool isGivenAnew(Side side, std::size_t category) const {
    const Index base = categories_.elements[category][kBase],
                own = categories_.elements[category][side];
    if (categoryLists_[kBase][static_cast<std::size_t>(*base)] !=
        categoryLists_[side][static_cast<std::size_t>(*own)]) {
      return true;
    }
    for (const Three<std::int32_t>& element : state_.classes.elements) {
      if (!element[side] || categoryOf(side, *element[side]) != category) continue;
      if (!element[kBase] || categoryOf(kBase, *element[kBase]) != category) return true;
    }
    return false;
  }

  void mergeClasses() {
    const auto namesOn = [this](Side side) -> const std::vector<std::string>& {
      return in(side).classes.className;
    };
    arrange(state_.classes, DifferenceKind::judgedClass, "classes", namesOn);
    for (const std::size_t id : state_.classes.order) mergeClass(state_.classes.elements[id]);
  }

  void mergeClass(const Three<std::int32_t>& element) {
    const std::string subject = formatText("class %d", result().classes.count() + 1);
    const auto merge = [&](const char* name, auto of, auto text) {
      return mergeElement(element, of, [&](const auto& ours, const auto& theirs) {
        state_.differs(DifferenceKind::judgedClass, subject, name, text(ours), text(theirs));
      });
    };
    const auto classesOf = [this](Side side) -> const JudgingClasses& { return in(side).classes; };
    const auto plain = [](const std::string& text) { return text; };
    const auto yesOrNo = [](bool flag) { return std::string(flag ? "Yes" : "No"); };
    const auto number = [](std::int32_t value) { return std::to_string(value); };
    std::string name = merge(
        "name", [&](Side s, std::int32_t k) { return classesOf(s).name(k); }, plain);
    const bool reasons = merge(
        "reasons", [&](Side s, std::int32_t k) { return classesOf(s).hasReasons(k); }, yesOrNo);
    const bool questions = merge(
        "questions", [&](Side s, std::int32_t k) { return classesOf(s).hasQuestions(k); }, yesOrNo);
    const PlacingLetter official = merge(
        "official placing", [&](Side s, std::int32_t k) { return classesOf(s).official(k); },
        [](PlacingLetter letter) { return scoreText(ScoreValue::letter, {letter}); });
    const auto cut = [&](const char* label, std::int32_t Cuts::*value) {
      return merge(
          label, [&, value](Side s, std::int32_t k) { return classesOf(s).cuts(k).*value; },
          number);
    };
    Cuts cuts;
    cuts.cut1 = cut("cut 1", &Cuts::cut1);
    cuts.cut2 = cut("cut 2", &Cuts::cut2);
    cuts.cut3 = cut("cut 3", &Cuts::cut3);
    std::optional<std::size_t> category = merge(
        "category", [&](Side s, std::int32_t k) { return categoryOf(s, k); },
        [&](std::optional<std::size_t> id) {
          const Index index = id ? categories_.indexOf[*id] : std::nullopt;
          return index ? categoryName(result(), *index) : std::string(kNoCategory);
        });
    const bool isLeftOut = category && !categories_.indexOf[*category];
    if (isLeftOut && element[kOurs]) category = categoryOf(kOurs, *element[kOurs]);
    const Index index = category ? categories_.indexOf[*category] : std::nullopt;
    result().classes.add(std::move(name), reasons, questions, official, cuts, index.value_or(0));
  }

  void mergeScores() {
    std::vector<std::pair<ContestantNumber, std::size_t>> people;
    for (std::size_t id = 0; id < state_.staysPerson.size(); ++id) {
      if (state_.staysPerson[id]) people.emplace_back(state_.numberOf[id], id);
    }
    std::sort(people.begin(), people.end());
    std::vector<decltype(result().scores)::Entry> scores;
    scores.reserve(people.size());
    for (const auto& [number, person] : people) {
      scores.emplace_back(number, mergedScores(number, person));
    }
    result().scores = decltype(result().scores)::fromEntries(std::move(scores));
    for (const auto& entry : result().contestantNames) {  // slots that were reserved just now
      ClassScores& records = result().scores[entry.first];
      for (std::int32_t k = 0; k < result().classes.count(); ++k) records[k];
    }
    sortAsCardsLie(result(), state_.merge.scores);
  }

  ClassScores mergedScores(ContestantNumber number, std::size_t person) {
    Three<const ClassScores*> sides;
    for (const Side side : {kBase, kOurs, kTheirs}) sides[side] = state_.scoresOf(side, person);
    const Three<ContestantNumber>& numbers = state_.roster.people[person];
    std::vector<ClassScores::Entry> records;
    records.reserve(state_.classes.order.size());
    for (const std::size_t id : state_.classes.order) {
      const auto index = static_cast<std::int32_t>(records.size());
      const Three<std::int32_t>& element = state_.classes.elements[id];
      const ScoreRecord& ours = state_.record(kOurs, *sides[kOurs], id);
      const ScoreRecord& theirs = state_.record(kTheirs, *sides[kTheirs], id);
      const bool isOurs = numbers[kOurs] && element[kOurs];
      const bool isTheirs = numbers[kTheirs] && element[kTheirs];
      records.emplace_back(index, isTheirs ? theirs : ours);
      if (!isOurs || !isTheirs || ours == theirs) continue;
      const ScoreRecord& base = state_.record(kBase, *sides[kBase], id);
      ScoreRecord& merged = records.back().second;
      const auto differs = [&](ScoreValue value) {
        state_.merge.scores.push_back({index, value, number, {ours, theirs}});
      };
      merged.letter = mergedValue(&base.letter, ours.letter, theirs.letter,
                                  [&] { differs(ScoreValue::letter); });
      merged.reasonsScore = mergedValue(&base.reasonsScore, ours.reasonsScore, theirs.reasonsScore,
                                        [&] { differs(ScoreValue::reasons); });
      merged.questionsScore =
          mergedValue(&base.questionsScore, ours.questionsScore, theirs.questionsScore,
                      [&] { differs(ScoreValue::questions); });
    }
    return ClassScores::fromEntries(std::move(records));
  }

  void finish() {
    Contest& contest = result();
    contest.groupLetters = makeGroupLetters(contest.settings.numGroups);
    const ContestSettings& ours = in(kOurs).settings;
    const bool keepsLetters =
        ours.startNum == contest.settings.startNum && ours.numGroups == contest.settings.numGroups;
    for (const auto& entry : contest.contestantNames) {
      contest.contestantGroup[entry.first] = groupOfNumber(contest.settings, entry.first);
    }
    for (std::size_t id = 0; id < state_.staysPerson.size(); ++id) {
      const auto number = state_.roster.people[id][kOurs];
      if (!keepsLetters || !state_.staysPerson[id] || !number) continue;
      contest.contestantGroup[state_.numberOf[id]] =
          *number == state_.numberOf[id] ? groupOfContestant(in(kOurs), *number)
                                         : groupOfNumber(contest.settings, state_.numberOf[id]);
    }
    updateNextContestant(contest);
    recomputeAllPlacingScores(contest);
  }

  MergeState state_;
  std::array<std::vector<std::string>, 3> categoryLists_;
  MergedList categories_;
};

}  // namespace

Merge mergeContests(const Contest& base, const Contest& ours, const Contest& theirs) {
  return ContestMerge(base, ours, theirs).run();
}

}  // namespace scorvane
