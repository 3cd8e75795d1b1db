#include "model/change_summary.h"

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "model/contest_differences.h"
#include "text/format.h"

namespace scorvane {

namespace {

// More than this many of a kind are only counted.
constexpr std::size_t kMostNamed = 2;

// All that happened to the subjects of one kind.
struct SubjectChanges {
  std::vector<const Difference*> added, removed;
  /// The values that changed, by subject; "member 1" and "member 2" are "members". A setting is its
  /// own subject.
  std::map<std::string, std::string> values;

  void take(const Difference& difference) {
    if (difference.kind == DifferenceKind::contestant) return takeContestant(difference);
    if (difference.value.empty()) {
      (difference.sides.there.empty() ? added : removed).push_back(&difference);
      return;
    }
    if (difference.kind == DifferenceKind::setting) {
      values[difference.value];
      return;
    }
    const bool isMember = difference.value.starts_with("member ");
    const std::string value = isMember ? "members" : difference.value;
    std::string& listed = values[difference.subject];
    if (!listed.ends_with(value)) listed += (listed.empty() ? " " : ", ") + value;
  }

 private:
  // Numbers that are only reserved come and go with their team.
  void takeContestant(const Difference& difference) {
    const auto isNamed = [](const std::string& name) { return !name.empty() && name != kNoName; };
    const bool isHere = isNamed(difference.sides.here), isThere = isNamed(difference.sides.there);
    if (isHere && isThere) values[difference.subject] = " renamed";
    if (isHere && !isThere) added.push_back(&difference);
    if (!isHere && isThere) removed.push_back(&difference);
  }
};

// "here" is the state after, "there" the one before.
class Summary {
 public:
  explicit Summary(const ContestDifferences& differences) : differences_(differences) {
    for (const Difference& difference : differences.values) {
      // All classes behind one that was removed have another number, and all places in the reasons
      // order behind a gap that was closed are others.
      if (difference.value == "number") {
        classOrder_ = true;
      } else if (difference.kind == DifferenceKind::reasonsOrder) {
        reasonsOrder_ = true;
      } else {
        changes_[difference.kind].take(difference);
      }
    }
  }

  std::vector<std::string> items() {
    SubjectChanges& classes = changes_[DifferenceKind::judgedClass];
    if (classes.added.empty() && classes.removed.empty() && classOrder_) {
      items_.emplace_back("order of the classes");
    }
    listChanges(classes, "classes");
    listTeams();
    listChanges(changes_[DifferenceKind::contestant], "contestants", "contestant ");
    listScores();
    if (reasonsOrder_) items_.emplace_back("reasons order");
    listChanges(changes_[DifferenceKind::category], "categories");
    listChanges(changes_[DifferenceKind::setting], "settings");
    return std::move(items_);
  }

 private:
  void listAll(const std::vector<const Difference*>& subjects, const std::string& several,
               const char* sign, const char* one, const char* done) {
    if (subjects.size() > kMostNamed) {
      items_.push_back(sign + std::to_string(subjects.size()) + ' ' + several);
      return;
    }
    for (const Difference* subject : subjects) {
      const bool isClass = subject->kind == DifferenceKind::judgedClass;
      const std::string name = isClass ? ' ' + subject->sides.here + subject->sides.there : "";
      items_.push_back(formatText("%s%s%s%s", one, subject->subject.c_str(), name.c_str(), done));
    }
  }

  void listChanges(const SubjectChanges& changes, const std::string& several,
                   const char* one = "") {
    listAll(changes.removed, several, "-", one, " removed");
    listAll(changes.added, several, "+", one, " added");
    if (changes.values.size() > kMostNamed) {
      items_.push_back(std::to_string(changes.values.size()) + ' ' + several + " changed");
      return;
    }
    for (const auto& [subject, values] : changes.values) {
      items_.push_back(formatText("%s%s%s", one, subject.c_str(), values.c_str()));
    }
  }

  // A team that goes while one with its members comes has a new name.
  void listTeams() {
    SubjectChanges& teams = changes_[DifferenceKind::team];
    if (teams.removed.size() == 1 && teams.added.size() == 1 &&
        teams.removed[0]->sides.there == teams.added[0]->sides.here) {
      items_.push_back(teams.removed[0]->subject + " is now " + teams.added[0]->subject);
      teams.removed.clear();
      teams.added.clear();
    }
    listChanges(teams, "teams");
  }

  void listScores() {
    struct Count {
      std::int64_t added = 0, removed = 0, changed = 0, recomputed = 0;
    };
    std::map<std::size_t, Count> byClass;
    for (const ScoreDifference& score : differences_.scores) {
      Count& count = byClass[score.classMatch];
      if (score.value == ScoreValue::placingScore) {
        ++count.recomputed;
      } else if (!isEntered(score.value, score.records.there)) {
        ++count.added;
      } else if (!isEntered(score.value, score.records.here)) {
        ++count.removed;
      } else {
        ++count.changed;
      }
    }
    std::map<std::string, Count> shown;
    for (const auto& [match, count] : byClass) {
      const auto& [here, there] = differences_.classes[match];
      Count& sum = shown[byClass.size() > kMostNamed
                             ? formatText("in %zu classes", byClass.size())
                             : formatText("in class %d", (here ? *here : *there) + 1)];
      sum.added += count.added;
      sum.removed += count.removed;
      sum.changed += count.changed;
      sum.recomputed += count.recomputed;
    }
    for (const auto& [where, count] : shown) {
      listScores("-", count.removed, "", where);
      listScores("+", count.added, "", where);
      listScores("", count.changed, "changed ", where);
      listScores("", count.recomputed, "computed anew ", where);
    }
  }

  void listScores(const char* sign, std::int64_t number, const char* done,
                  const std::string& where) {
    if (number == 0) return;
    items_.push_back(formatText("%s%lld %s %s%s", sign, static_cast<long long>(number),
                                number == 1 ? "score" : "scores", done, where.c_str()));
  }

  const ContestDifferences& differences_;
  std::map<DifferenceKind, SubjectChanges> changes_;
  bool classOrder_ = false;
  bool reasonsOrder_ = false;
  std::vector<std::string> items_;
};

}  // namespace

std::string changeSummary(const Contest& before, const Contest& after, std::size_t width) {
  const ContestDifferences differences = contestDifferences(after, before);
  const std::vector<std::string> items = Summary(differences).items();
  if (items.empty()) return "nothing";
  std::string line = items.front();
  for (std::size_t i = 1; i < items.size(); ++i) {
    const std::size_t left = items.size() - i;
    const std::string rest = formatText("; and %zu more", left);
    const std::string next = line + "; " + items[i];
    // The item must leave room for the count of those behind it.
    if (next.size() + (left == 1 ? 0 : rest.size()) > width) return line + rest;
    line = next;
  }
  return line;
}

}  // namespace scorvane
