#include "reports/differences_report.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <string_view>
#include <utility>

#include "model/contest_differences.h"
#include "model/numbering.h"
#include "reports/report_parts.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

constexpr std::size_t kValueWidth = 21;
constexpr const char* kValueRow = "%-36.36s %-21.21s %.21s\n";
constexpr const char* kScoreRow = "%-31.31s %-5.5s %-14.14s %-13.13s %.13s\n";

// Two long values are shown from shortly before the point where they part, so that the difference
// is seen.
Sides<std::string> shownSides(Sides<std::string> sides) {
  constexpr std::size_t kBefore = 6;
  constexpr std::string_view kLeftOut = "...";
  const auto& [here, there] = sides;
  const auto parting = std::mismatch(here.begin(), here.end(), there.begin(), there.end());
  const auto same = static_cast<std::size_t>(parting.first - here.begin());
  if (std::max(here.size(), there.size()) > kValueWidth && same > kValueWidth / 2) {
    for (std::string* side : {&sides.here, &sides.there}) {
      side->replace(0, same - kBefore, kLeftOut);
    }
  }
  return {orHyphen(sides.here), orHyphen(sides.there)};
}

class DifferencesReport {
 public:
  DifferencesReport(const Contest& here, const Contest& there, const DifferencesHeading& heading)
      : here_(here), there_(there), heading_(heading), found_(contestDifferences(here, there)) {}

  std::string build() {
    out_ = heading_.title + "\n\n";
    appendCounts();
    if (found_.empty()) out_ += "\nNothing differs.\n";
    if (!found_.values.empty()) appendValues();
    appendScores();
    return std::move(out_);
  }

 private:
  void appendCounts() {
    const ScoreCounts& counts = found_.counts;
    const auto line = [this](std::int64_t number, const std::string& what) {
      appendFormat(out_, "%8lld  %s\n", static_cast<long long>(number), what.c_str());
    };
    line(counts.onBothSides, "scores compared");
    line(counts.differing, "of them differ");
    line(counts.onlyOn.here, "only under " + heading_.here);
    line(counts.onlyOn.there, "only under " + heading_.there);
  }

  void appendValues() {
    out_ += '\n';
    appendFormat(out_, kValueRow, "", heading_.here.c_str(), heading_.there.c_str());
    out_ += std::string(80, '-') + '\n';
    for (const Difference& difference : found_.values) {
      if (closeIfTooLong(out_)) return;
      // A long name is cut, not what differs about it.
      const std::string value = difference.value.empty() ? "" : ' ' + difference.value;
      std::string what = difference.subject.substr(0, 36 - value.size()) + value;
      what.erase(0, what.front() == ' ' ? 1 : 0);
      what[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(what[0])));
      const auto [here, there] = shownSides(difference.sides);
      appendFormat(out_, kValueRow, what.c_str(), here.c_str(), there.c_str());
    }
  }

  void appendScores() {
    std::size_t shownClass = found_.classes.size();
    for (const ScoreDifference& score : found_.scores) {
      if (closeIfTooLong(out_)) return;
      if (std::exchange(shownClass, score.classMatch) != score.classMatch) {
        appendClassHeading(found_.classes[score.classMatch]);
      }
      appendScore(score);
    }
  }

  void appendClassHeading(const ClassMatch& match) {
    const JudgingClasses& classes = match.here ? here_.classes : there_.classes;
    const std::int32_t index = match.here ? *match.here : *match.there;
    appendFormat(out_, "\nClass %d: %.60s\n", index + 1, classes.name(index).c_str());
    appendFormat(out_, kScoreRow, "", "Group", "Score", heading_.here.c_str(),
                 heading_.there.c_str());
    out_ += std::string(80, '-') + '\n';
  }

  void appendScore(const ScoreDifference& score) {
    const Contest& contest = here_.contestantNames.contains(score.number) ? here_ : there_;
    const std::string& name = contestantName(here_, score.number);
    const std::string who =
        formatText("%5d %s", score.number,
                   (name.empty() ? contestantName(there_, score.number) : name).c_str());
    appendFormat(out_, kScoreRow, who.c_str(), pileText(contest, score).c_str(),
                 scoreWord(score.value),
                 orHyphen(scoreText(score.value, score.records.here)).c_str(),
                 orHyphen(scoreText(score.value, score.records.there)).c_str());
  }

  // The group in whose pile the card lies: cards of reasons lie by reasons group.
  static std::string pileText(const Contest& contest, const ScoreDifference& score) {
    if (score.value != ScoreValue::reasons) {
      return formatText("  %c", groupOfContestant(contest, score.number));
    }
    const ReasonsPlace place = reasonsPlaceOf(contest, score.number);
    return place.isAssigned() ? formatText("  %d", place.group + 1) : "  -";
  }

  const Contest& here_;
  const Contest& there_;
  const DifferencesHeading& heading_;
  ContestDifferences found_;
  std::string out_;
};

}  // namespace

std::string differencesReport(const Contest& here, const Contest& there,
                              const DifferencesHeading& heading) {
  return DifferencesReport(here, there, heading).build();
}

}  // namespace scorvane
