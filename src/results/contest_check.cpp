#include "results/contest_check.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "model/class_lists.h"
#include "model/contest_findings.h"
#include "model/entry_progress.h"
#include "model/reasons_places.h"
#include "model/team_index.h"
#include "results/award_lists.h"
#include "results/hand_out.h"
#include "results/rankings.h"
#include "results/team_ranking.h"
#include "storage/contest_writer.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

constexpr std::string_view kNothing = "Nothing is missing.\n";
// As wide as a team's name is in the High Team reports.
constexpr std::size_t kShownTeamName = 21;

// Names that differ in blanks behind them read the same.
std::string_view withoutEndBlanks(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

// Calls act(first, last) for each run of at least two items with equal keys.
template <typename Items, typename Key, typename Act>
void forRunsOfSame(const Items& items, Key key, Act act) {
  for (auto first = items.begin(); first != items.end();) {
    const auto last = std::find_if(first, items.end(),
                                   [&](const auto& item) { return key(item) != key(*first); });
    if (last - first > 1) act(first, last);
    first = last;
  }
}

class ContestCheck {
 public:
  explicit ContestCheck(const Contest& contest) : contest_(contest), progress_(contest) {}

  std::string build() {
    findMissingScores();
    findOfficialPlacings();
    findSpeakersWithoutPlace();
    findSmallTeams();
    findFindings(FindingKind::numberInTwoTeams, "Numbers that teams have more than once");
    findSameNames();
    findSameTeamNames();
    findFindings(FindingKind::scoresWithoutName, "Scores under numbers without a name");
    findFindings(FindingKind::recordWithoutClass, "Scores for classes that do not exist");
    findCutTexts();
    findTies();
    std::string report(kNothing);
    if (things_ > 0) {
      report = formatText("%zu thing%s to look at before the awards.\n", things_,
                          things_ == 1 ? "" : "s");
    }
    report += out_;
    appendNoShows(report);
    (void)closeIfTooLong(report, kLongestHandOut);
    return report;
  }

 private:
  void begin(std::string heading) { heading_ = std::move(heading); }

  // A heading is only written with its first thing, which can have a second line.
  void add(const std::string& line, const std::string& second = "") {
    if (!heading_.empty()) out_.append("\n").append(heading_).append("\n");
    heading_.clear();
    ++things_;
    if (out_.size() > kLongestHandOut) return;
    out_.append("  ").append(line, 0, kWidestLine - 2).append("\n");
    if (!second.empty()) out_.append("  ").append(second).append("\n");
  }

  [[nodiscard]] std::string personText(ContestantNumber number) const {
    return formatText("%d %.20s", number, contestantName(contest_, number).c_str());
  }

  // Behind the beginning of a line as many items as fit; of the others how many they are.
  static std::string listed(std::string line, const std::vector<std::string>& items) {
    for (std::size_t i = 0; i < items.size(); ++i) {
      const std::size_t left = items.size() - i;
      const std::size_t room =
          kWidestLine - 2 - (left > 1 ? formatText(" and %zu more", left).size() : 0);
      if (line.size() + items[i].size() + 2 > room && !(i == 0 && left == 1)) {
        return line + formatText("%s%zu%s", i == 0 ? "" : " and ", left, i == 0 ? "" : " more");
      }
      line += (i == 0 ? "" : ", ") + items[i];
    }
    return line;
  }

  void findMissingScores() {
    begin("Missing scores, by class and group");
    if (progress_.expected().empty()) return add("No cards are in yet.");
    constexpr std::array kWords = {"placings", "reasons", "questions"};
    for (std::int32_t k = 0; k < contest_.classes.count(); ++k) {
      for (const ScoreValue kind : kEnteredValues) {
        if (!isAsked(contest_.classes, k, kind)) continue;
        const std::string what =
            formatText("%2d %-18.18s %-9s ", k + 1, contest_.classes.name(k).c_str(),
                       kWords.at(static_cast<std::size_t>(kind)));
        addMissing(what, progress_.missing(k, kind));
      }
    }
  }

  void addMissing(const std::string& what, const std::vector<EntryProgress::Person>& missing) {
    std::vector<std::vector<std::string>> byGroup(progress_.groups().size());
    for (const auto& person : missing) byGroup[person.group].push_back(personText(person.number));
    for (std::size_t group = 0; group < byGroup.size(); ++group) {
      const std::size_t count = byGroup[group].size();
      const std::int32_t expected = progress_.expectedByGroup()[group];
      if (count == 0) continue;
      const std::string line =
          what + formatText("group %c  %zu of %d:", progress_.groups()[group], count, expected);
      const bool isAll = count > 1 && count == static_cast<std::size_t>(expected);
      if (isAll || count == 1) {
        add(line + " " + (isAll ? "all of them" : byGroup[group][0]));
      } else {
        add(line, listed("      ", byGroup[group]));
      }
    }
  }

  void findOfficialPlacings() {
    const JudgingClasses& classes = contest_.classes;
    const auto isNeverSet = [&](std::int32_t k) {
      const auto [cut1, cut2, cut3] = classes.cuts(k);
      return !isOrderLetter(classes.official(k)) || (cut1 == 0 && cut2 == 0 && cut3 == 0);
    };
    const auto className = [&](std::int32_t k) {
      return formatText("%2d %.24s: ", k + 1, classes.name(k).c_str());
    };
    begin("Official placings or cuts that were never set");
    for (std::int32_t k = 0; k < classes.count(); ++k) {
      if (!isNeverSet(k)) continue;
      add(className(k) + (isOrderLetter(classes.official(k))
                              ? formatText("%c with cuts 0-0-0, so that every placing scores 50",
                                           classes.official(k))
                              : std::string("no letter from A to X")));
    }
    begin("Official placings that the cards contradict");
    const CardsByClass cards(contest_);
    for (std::int32_t k = 0; k < classes.count(); ++k) {
      if (isNeverSet(k)) continue;
      const ClassStatistics statistics = cards.statistics(k);
      const auto likelier = likelierPlacing(statistics, classes.official(k), classes.cuts(k));
      if (!likelier) continue;
      add(className(k) + formatText("%s, but %d of %d score higher under %s",
                                    placingText(classes.official(k)).c_str(), likelier->better,
                                    statistics.placed, placingText(likelier->letter).c_str()));
    }
  }

  void findSpeakersWithoutPlace() {
    if (contest_.reasonsOrder.empty() || reasonsClasses(contest_.classes).empty()) return;
    begin("Contestants without a place in the reasons order");
    const TeamIndex teams(contest_);
    for (const ContestantNumber number : unassignedSpeakers(contest_)) {
      if (!hasCome(number) && !progress_.expected().empty()) continue;
      const std::string& team = teams.teamOf(number);
      add(personText(number) + (team.empty() ? "" : ", " + team));
    }
  }

  void findSmallTeams() {
    const std::int32_t toScore = contest_.settings.numToScore;
    begin(formatText("Teams with fewer named regular members than the %d that count", toScore));
    for (const auto& [name, team] : contest_.teams) {
      std::int32_t named = 0;
      for (std::size_t slot = 0; slot < regularSlots(contest_.settings, team); ++slot) {
        if (!contestantName(contest_, team.members[slot]).empty()) ++named;
      }
      if (named < toScore) add(formatText("%.60s: %d", name.c_str(), named));
    }
  }

  void findFindings(FindingKind kind, const char* heading) {
    begin(heading);
    const TeamIndex teams(contest_);
    for (const Finding& finding : findings_) {
      if (finding.kind != kind) continue;
      const auto count = static_cast<long long>(finding.count);
      if (kind == FindingKind::numberInTwoTeams) {
        add(listed(std::string(withoutEndBlanks(personText(finding.number))) + ": ",
                   finding.teams));
      } else if (kind == FindingKind::scoresWithoutName) {
        add(formatText("%d, %s: %lld", finding.number, teams.teamOf(finding.number).c_str(),
                       count));
      } else {
        add(formatText("class %lld: %lld", finding.classIndex + 1LL, count));
      }
    }
  }

  void findCutTexts() {
    begin("Names that the contest file has no room for");
    for (const Finding& finding : cutTexts(contest_)) add(finding.text);
  }

  void findSameNames() {
    begin("Contestants of the same name in one team");
    for (const auto& [teamName, team] : contest_.teams) {
      std::vector<std::pair<std::string_view, ContestantNumber>> members;
      for (const ContestantNumber number : team.members) {
        const std::string_view name = withoutEndBlanks(contestantName(contest_, number));
        if (!name.empty()) members.emplace_back(name, number);
      }
      std::sort(members.begin(), members.end());
      members.erase(std::unique(members.begin(), members.end()), members.end());
      const std::string& where = teamName;
      forRunsOfSame(
          members, [](const auto& member) { return member.first; },
          [&](auto first, auto last) {
            std::vector<std::string> numbers;
            for (; first != last; ++first) numbers.push_back(personText(first->second));
            add(listed(formatText("%.30s: ", where.c_str()), numbers));
          });
    }
  }

  void findSameTeamNames() {
    begin("Teams whose names read the same in the award lists");
    std::vector<const std::string*> names;
    for (const auto& entry : contest_.teams) names.push_back(&entry.first);
    const auto shown = [](const std::string* name) {
      return withoutEndBlanks(std::string_view(*name).substr(0, kShownTeamName));
    };
    std::stable_sort(names.begin(), names.end(),
                     [&](const auto* a, const auto* b) { return shown(a) < shown(b); });
    forRunsOfSame(names, shown, [&](auto first, auto last) {
      std::vector<std::string> same;
      for (; first != last; ++first) same.push_back(**first);
      add(listed("", same));
    });
  }

  [[nodiscard]] bool hasCome(ContestantNumber number) const {
    const auto& people = progress_.expected();
    const auto person = std::lower_bound(
        people.begin(), people.end(), number,
        [](const auto& other, ContestantNumber wanted) { return other.number < wanted; });
    return person != people.end() && person->number == number;
  }
  [[nodiscard]] bool hasCome(const IndividualRow& row) const { return hasCome(row.number); }
  [[nodiscard]] bool hasCome(const TeamRow& row) const {
    return std::any_of(row.members.begin(), row.members.end(),
                       [this](const MemberRow& member) { return hasCome(member.number); });
  }

  // Of the rows of everybody the first `inReport` ones are in the report.
  template <typename Row, typename Text>
  void addTies(const std::vector<Row>& rows, std::size_t inReport, const char* list, Text text) {
    for (std::size_t i = 0; i < inReport && i + 1 < rows.size(); ++i) {
      const Row& next = rows[i + 1];
      if (!rows[i].outcome.equalsNext || !hasCome(rows[i]) || !hasCome(next)) continue;
      add(formatText("%s, %s and %s: ", list, placeInWords(rows[i].place).c_str(),
                     placeInWords(next.place).c_str()) +
          text(rows[i]) + " and " + text(next));
    }
  }

  void findTies() {
    if (progress_.expected().empty()) return;
    begin("Ties that no rule breaks, down to the last place in the list and the next one");
    const ReportRequest everybody = everybodyRequest(contest_, ScoreKind::overall);
    const ReportRequest request = wholeContestRequest(contest_, ScoreKind::overall);
    addTies(individualRows(contest_, everybody), individualRows(contest_, request).size(),
            "Individual", [&](const IndividualRow& row) { return personText(row.number); });
    addTies(teamRows(contest_, everybody), teamRows(contest_, request).size(), "Team",
            [](const TeamRow& row) { return formatText("%.24s", row.name->c_str()); });
  }

  void appendNoShows(std::string& report) const {
    const auto& people = progress_.noShows();
    if (people.empty() || progress_.expected().empty()) return;
    appendFormat(report, "\nNothing entered in any class, probably not here: %zu\n", people.size());
    for (const auto& person : people) {
      report.append("  ").append(personText(person.number)).append("\n");
      if (report.size() > kLongestHandOut) return;
    }
  }

  const Contest& contest_;
  EntryProgress progress_;
  std::vector<Finding> findings_ = contestFindings(contest_);
  std::string heading_;
  std::string out_;
  std::size_t things_ = 0;
};

}  // namespace

std::string contestCheckReport(const Contest& contest) {
  return ContestCheck(contest).build();
}

bool tellsOfThings(std::string_view contestCheck) {
  return !contestCheck.starts_with(kNothing);
}

}  // namespace scorvane
