#include <tuple>

#include "model/merge_values.h"
#include "model/reasons_places.h"
#include "text/format.h"

namespace scorvane {

namespace {

struct Speaker {
  std::int32_t group = 0;
  std::int32_t position = 0;
  std::size_t person = 0;
  friend bool operator==(const Speaker&, const Speaker&) = default;
  friend bool operator<(const Speaker& a, const Speaker& b) {
    return std::tie(a.group, a.position, a.person) < std::tie(b.group, b.position, b.person);
  }
};

// Number of reasons takers and all places: one value, as places only mean something together.
class ReasonsMerge {
 public:
  explicit ReasonsMerge(MergeState& state) : state_(state), contest_(state.merge.contest) {
    for (const Side side : {kBase, kOurs, kTheirs}) {
      const Contest& contest = *state_.contests[side];
      for (const auto& [number, person] : state_.roster.personOf[side]) {
        const ReasonsPlace place = reasonsPlaceOf(contest, number);
        if (place.isAssigned()) speakers_[side].push_back({place.group, place.position, person});
      }
      std::sort(speakers_[side].begin(), speakers_[side].end());
    }
  }

  void run() {
    const Side side = chosenSide();
    contest_.settings.numReasonsGroups = state_.contests[side]->settings.numReasonsGroups;
    for (const auto& [number, person] : state_.roster.personOf[side]) {
      if (!stays(person)) continue;
      contest_.reasonsPlace[state_.numberOf[person]] =
          reasonsPlaceOf(*state_.contests[side], number);
    }
    for (const auto& entry : contest_.contestantNames) contest_.reasonsPlace[entry.first];
    if (isCompacted_ || !std::all_of(speakers_[side].begin(), speakers_[side].end(),
                                     [this](const Speaker& s) { return stays(s.person); })) {
      moveUp(side);
    }
    rebuildReasonsOrder(contest_);
  }

 private:
  [[nodiscard]] bool stays(std::size_t person) const {
    return state_.staysPerson[person] && !contestantName(contest_, state_.numberOf[person]).empty();
  }

  [[nodiscard]] bool isOn(std::size_t person, Side side) const {
    const auto number = state_.roster.people[person][side];
    return number && !contestantName(*state_.contests[side], *number).empty();
  }

  [[nodiscard]] bool isEqual(Side a, Side b) const {
    return takers(a) == takers(b) && speakers_[a] == speakers_[b];
  }

  [[nodiscard]] std::int32_t takers(Side side) const {
    return state_.contests[side]->settings.numReasonsGroups;
  }

  // Who speaks in which group in which order, of those who stay and are on both sides.
  [[nodiscard]] std::vector<std::pair<std::int32_t, std::size_t>> sequence(Side side,
                                                                           Side other) const {
    std::vector<std::pair<std::int32_t, std::size_t>> speakers;
    for (const Speaker& speaker : speakers_[side]) {
      if (stays(speaker.person) && isOn(speaker.person, other)) {
        speakers.emplace_back(speaker.group, speaker.person);
      }
    }
    return speakers;
  }

  // Whether a side differs from the ancestor only by people it removed.
  [[nodiscard]] bool isAsBefore(Side side) const {
    if (takers(side) != takers(kBase)) return false;
    auto before = sequence(kBase, side), now = sequence(side, side);
    return before == now;
  }

  // Whether a side only removed people, of whom somebody stays.
  [[nodiscard]] bool hasLost(Side side) const {
    return isAsBefore(side) && std::any_of(speakers_[kBase].begin(), speakers_[kBase].end(),
                                           [&](const Speaker& speaker) {
                                             return stays(speaker.person) &&
                                                    !isOn(speaker.person, side);
                                           });
  }

  Side chosenSide() {
    if (isEqual(kOurs, kBase)) return hasLost(kTheirs) ? kBase : kTheirs;
    if (isEqual(kTheirs, kBase)) return hasLost(kOurs) ? kBase : kOurs;
    if (isEqual(kOurs, kTheirs)) return kOurs;
    const bool isOursAsBefore = isAsBefore(kOurs), isTheirsAsBefore = isAsBefore(kTheirs);
    if (isOursAsBefore && isTheirsAsBefore) return kBase;
    if (isOursAsBefore) return kTheirs;
    if (isTheirsAsBefore) return kOurs;
    if (takers(kOurs) == takers(kTheirs)) {
      const auto ours = sequence(kOurs, kTheirs), theirs = sequence(kTheirs, kOurs);
      const auto allOurs = sequence(kOurs, kOurs), allTheirs = sequence(kTheirs, kTheirs);
      isCompacted_ = ours == theirs && allOurs == allTheirs;
      if (ours == theirs && theirs == allTheirs) return kOurs;
      if (ours == theirs && ours == allOurs) return kTheirs;
    }
    const auto text = [this](Side side) {
      return formatText("%zu in %d groups", speakers_[side].size(), takers(side));
    };
    state_.differs(DifferenceKind::reasonsOrder, "", "reasons order", text(kOurs), text(kTheirs));
    return kOurs;
  }

  void moveUp(Side side) {
    std::int32_t group = kNobody;
    std::int32_t next = 0;
    for (const Speaker& speaker : speakers_[side]) {
      if (!stays(speaker.person)) continue;
      if (std::exchange(group, speaker.group) != speaker.group) next = 0;
      contest_.reasonsPlace[state_.numberOf[speaker.person]] = {speaker.group, next++};
    }
  }

  MergeState& state_;
  Contest& contest_;
  bool isCompacted_ = false;
  std::array<std::vector<Speaker>, 3> speakers_;  // by group and position
};

}  // namespace

void mergeReasonsOrder(MergeState& state) {
  ReasonsMerge(state).run();
}

}  // namespace scorvane
