#include "reports/entry_progress_report.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "model/entry_progress.h"
#include "model/numbering.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

constexpr std::size_t kWidestLine = 80;
constexpr std::size_t kPrefix = 33;

const char* kindWord(ScoreValue kind) {
  constexpr std::array kWords = {"placings", "reasons", "questions"};
  return kWords.at(static_cast<std::size_t>(kind));
}

std::int32_t sumOf(const std::vector<std::int32_t>& counts) {
  return std::accumulate(counts.begin(), counts.end(), 0);
}

// Calls visit(class, kind) for everything that cards have to enter, until it returns false.
template <typename Visit>
bool visitAsked(const JudgingClasses& classes, Visit visit) {
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    for (const ScoreValue kind : kEnteredValues) {
      if (isAsked(classes, k, kind) && !visit(k, kind)) return false;
    }
  }
  return true;
}

// A band of the table: the groups from `first` on, and the sum of all behind the last ones.
struct Band {
  std::size_t first = 0;
  std::size_t end = 0;
  bool hasSum = false;
};

class ProgressBuilder {
 public:
  explicit ProgressBuilder(const Contest& contest)
      : contest_(contest),
        progress_(contest),
        cellWidth_(static_cast<int>(std::max<std::size_t>(
            2 * std::to_string(progress_.expected().size()).size() + 2, 7))) {}

  std::string build() {
    out_ =
        "Entry Progress\n\n"
        "Entered of expected.  Who has nothing entered in any class is not expected.\n\n";
    if (progress_.expected().empty()) {
      out_ += "No cards are in yet.\n";
    } else {
      const bool complete = appendBands() && appendMissing();
      if (!complete) return std::move(out_);
    }
    appendNoShows();
    return std::move(out_);
  }

 private:
  bool appendBands() {
    const std::size_t columns = progress_.groups().size() + 1;
    const std::size_t perBand =
        std::max<std::size_t>((kWidestLine - kPrefix) / static_cast<std::size_t>(cellWidth_), 1);
    for (std::size_t first = 0; first < columns; first += perBand) {
      if (first > 0) out_ += '\n';
      const std::size_t end = std::min(first + perBand, columns);
      const Band band{first, std::min(end, columns - 1), end == columns};
      appendHeading(band);
      if (!visitAsked(contest_.classes, [&](std::int32_t k, ScoreValue kind) {
            appendCounts(band, k, kind);
            return !closeIfTooLong(out_, kLongestHandOut);
          })) {
        return false;
      }
    }
    return true;
  }

  void appendHeading(const Band& band) {
    out_ += " # Class              Entered    ";
    for (std::size_t group = band.first; group < band.end; ++group) {
      appendFormat(out_, "%*c", cellWidth_, progress_.groups()[group]);
    }
    if (band.hasSum) appendFormat(out_, "%*s", cellWidth_, "All");
    out_ += '\n';
  }

  void appendCounts(const Band& band, std::int32_t k, ScoreValue kind) {
    if (kind == ScoreValue::letter) {
      appendFormat(out_, "%2d %-18.18s ", k + 1, contest_.classes.name(k).c_str());
    } else {
      out_.append(22, ' ');
    }
    appendFormat(out_, "%-11s", kindWord(kind));
    const auto entered = progress_.enteredByGroup(k, kind);
    const auto& expected = progress_.expectedByGroup();
    for (std::size_t group = band.first; group < band.end; ++group) {
      appendCell(entered[group], expected[group]);
    }
    if (band.hasSum) appendCell(sumOf(entered), sumOf(expected));
    out_ += '\n';
  }

  void appendCell(std::int32_t entered, std::int32_t expected) {
    appendFormat(out_, "%*s", cellWidth_, formatText("%d/%d", entered, expected).c_str());
  }

  bool appendMissing() {
    bool isAnyMissing = false;
    const bool complete = visitAsked(contest_.classes, [&](std::int32_t k, ScoreValue kind) {
      const auto expected = static_cast<std::int32_t>(progress_.expected().size());
      if (sumOf(progress_.enteredByGroup(k, kind)) == expected) return true;
      if (!isAnyMissing) out_ += "\nMissing:\n";
      isAnyMissing = true;
      const auto missing = progress_.missing(k, kind);
      appendFormat(out_, "\n%2d %.50s, %s: %zu\n", k + 1, contest_.classes.name(k).c_str(),
                   kindWord(kind), missing.size());
      appendPeople(missing);
      return !closeIfTooLong(out_, kLongestHandOut);
    });
    if (!isAnyMissing) out_ += "\nAll cards are in.\n";
    return complete;
  }

  // Two a line.
  void appendPeople(const std::vector<EntryProgress::Person>& people) {
    for (std::size_t i = 0; i < people.size(); ++i) {
      const bool endsLine = i % 2 == 1 || i + 1 == people.size();
      const char group = groupOfContestant(contest_, people[i].number);
      appendFormat(out_, endsLine ? "   %c %6d %.24s\n" : "   %c %6d %-24.24s", group,
                   people[i].number, people[i].name->c_str());
    }
  }

  void appendNoShows() {
    const auto& people = progress_.noShows();
    if (people.empty()) return;
    appendFormat(out_, "\nNothing entered in any class: %zu\n", people.size());
    appendPeople(people);
    (void)closeIfTooLong(out_, kLongestHandOut);
  }

  const Contest& contest_;
  EntryProgress progress_;
  int cellWidth_;
  std::string out_;
};

}  // namespace

std::string entryProgressReport(const Contest& contest) {
  return ProgressBuilder(contest).build();
}

}  // namespace scorvane
