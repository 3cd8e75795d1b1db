#include "storage/contest_oddities.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <vector>

#include "storage/contest_format.h"
#include "storage/line_scanner.h"
#include "text/format.h"
#include "text/number.h"

namespace scorvane {

namespace {

/// Ends at the line behind that of the classes' marker.
std::string oddSettings(LineScanner& lines) {
  std::array<bool, kSettingLines.size()> found{};
  bool hasCategories = false;
  bool areLast = false;
  while (const auto line = lines.next()) {
    const std::string_view key = FieldScanner(*line).nextOrEmpty();
    if (key == kClassesMarker) break;
    areLast = key == kCategoriesKey;
    hasCategories = hasCategories || areLast;
    for (std::size_t i = 0; i < found.size(); ++i) {
      found[i] = found[i] || key == kSettingLines[i].key;
    }
  }
  std::string missing;
  for (std::size_t i = 0; i < found.size(); ++i) {
    if (found[i]) continue;
    missing += missing.empty() ? "" : ", ";
    missing += kSettingLines[i].key.substr(0, kSettingLines[i].key.size() - 1);
  }
  std::string odd;
  if (!missing.empty()) {
    odd += "These settings have no line and are those of a new contest: " + missing + ".\n";
  }
  if (!hasCategories) odd += "The categories have no line, so there are none.\n";
  if (hasCategories && !areLast) {
    odd += "The categories were lost: theirs is not the last line of the settings.\n";
  }
  return odd;
}

/// The category that a class line names; 0 when it names none.
std::int32_t categoryOf(std::string_view line) {
  FieldScanner fields(line);
  for (int i = 0; i < 2; ++i) static_cast<void>(fields.next());
  const std::string_view third = fields.nextOrEmpty();
  const int fieldsBefore = third == "Yes" || third == "No" ? 2 : 1;
  for (int i = 0; i < fieldsBefore; ++i) static_cast<void>(fields.next());
  return leadingNumber(fields.nextOrEmpty());
}

std::string oddCategories(LineScanner& lines, const Contest& contest) {
  std::string classes;
  static_cast<void>(lines.next());
  for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
    const std::int32_t category = categoryOf(lines.next().value_or(""));
    if (category >= 0 && static_cast<std::size_t>(category) < contest.categories.size()) continue;
    classes += (classes.empty() ? "" : ", ") + std::to_string(k + 1);
    if (classes.size() > 60) {
      classes += ", ...";
      break;
    }
  }
  if (classes.empty()) return "";
  return "The category of these classes does not exist, so they have the first one: " + classes +
         ".\n";
}

/// The placing score of each letter in a class.
class ScoreOfLetter {
 public:
  ScoreOfLetter(const JudgingClasses& classes, std::int32_t k) {
    for (std::size_t i = 0; i < scores_.size(); ++i) {
      scores_[i] = placingScore(static_cast<char>('A' + i), classes.official(k), classes.cuts(k));
    }
  }
  [[nodiscard]] bool fits(const ScoreRecord& record) const {
    const bool isOrder = record.letter >= 'A' && record.letter <= 'X';
    const std::int32_t score = isOrder ? scores_[static_cast<std::size_t>(record.letter - 'A')] : 0;
    return score == record.placingScore;
  }

 private:
  std::array<std::int32_t, 24> scores_{};
};

/// Whether a class's scores are those of another one's official placing and cuts.
bool fitsAs(const Contest& contest, std::int32_t scored, std::int32_t official) {
  const ScoreOfLetter expected(contest.classes, official);
  return std::all_of(contest.scores.begin(), contest.scores.end(), [&](const auto& entry) {
    const ScoreRecord* record = entry.second.find(scored);
    return record == nullptr || expected.fits(*record);
  });
}

/// Of each class, whether all its scores are those of its own official placing and cuts.
std::vector<bool> fittingClasses(const Contest& contest) {
  std::vector<ScoreOfLetter> expected;
  for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
    expected.emplace_back(contest.classes, k);
  }
  std::vector<bool> fitting(expected.size(), true);
  for (const auto& [number, records] : contest.scores) {
    for (const auto& [classIndex, record] : records) {
      const auto k = static_cast<std::size_t>(classIndex);
      if (!expected[k].fits(record)) fitting[k] = false;
    }
  }
  return fitting;
}

// Stored placing scores are taken as they are, so they tell when two lines changed places.
std::string exchangedClasses(const Contest& contest) {
  if (contest.scores.empty()) return "";
  const std::vector<bool> fitting = fittingClasses(contest);
  for (std::size_t i = 1; i < fitting.size(); ++i) {
    const auto k = static_cast<std::int32_t>(i);
    if (fitting[i - 1] && fitting[i]) continue;
    if (!fitsAs(contest, k - 1, k) || !fitsAs(contest, k, k - 1)) continue;
    return formatText("Placing scores fit when classes %d and %d are exchanged.\n", k, k + 1);
  }
  return "";
}

}  // namespace

std::string contestOddities(std::string_view bytes, const Contest& contest) {
  LineScanner lines(bytes);
  std::string odd = oddSettings(lines);
  odd += oddCategories(lines, contest);
  return odd + exchangedClasses(contest);
}

}  // namespace scorvane
