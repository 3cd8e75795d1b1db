#include "storage/contest_oddities.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "storage/contest_format.h"
#include "storage/line_scanner.h"
#include "text/format.h"
#include "text/number.h"

namespace scorvane {

namespace {

enum class SettingFound { nowhere, withoutValue, withValue };
using SettingsFound = std::array<SettingFound, kSettingLines.size()>;

/// The sentence with the settings that were found so; "" when none was.
std::string withSettings(std::string_view sentence, const SettingsFound& found, SettingFound how) {
  std::string keys;
  for (std::size_t i = 0; i < found.size(); ++i) {
    if (found[i] != how) continue;
    keys += keys.empty() ? "" : ", ";
    keys += kSettingLines[i].key.substr(0, kSettingLines[i].key.size() - 1);
  }
  return keys.empty() ? "" : std::string(sentence).append(keys).append(".\n");
}

/// Ends at the line behind that of the classes' marker.
std::string oddSettings(LineScanner& lines) {
  SettingsFound found{};
  bool hasCategories = false;
  bool areLast = false;
  while (const auto line = lines.next()) {
    FieldScanner fields(*line);
    const std::string_view key = fields.nextOrEmpty();
    if (key == kClassesMarker) break;
    areLast = key == kCategoriesKey;
    hasCategories = hasCategories || areLast;
    for (std::size_t i = 0; i < found.size(); ++i) {
      if (key != kSettingLines[i].key) continue;
      found[i] =
          fields.nextOrEmpty().empty() ? SettingFound::withoutValue : SettingFound::withValue;
    }
  }
  std::string odd = withSettings(
      "These settings have no line and are those of a new contest: ", found, SettingFound::nowhere);
  odd += withSettings("These settings have no value, so they have the usual one: ", found,
                      SettingFound::withoutValue);
  if (!hasCategories) odd += "The categories have no line, so there are none.\n";
  if (hasCategories && !areLast) {
    odd += "The categories were lost: theirs is not the last line of the settings.\n";
  }
  return odd;
}

/// The category that a class line names; nothing when it names none.
std::optional<std::int32_t> categoryOf(std::string_view line) {
  FieldScanner fields(line);
  for (int i = 0; i < 2; ++i) static_cast<void>(fields.next());
  const std::string_view third = fields.nextOrEmpty();
  const int fieldsBefore = third == "Yes" || third == "No" ? 2 : 1;
  for (int i = 0; i < fieldsBefore; ++i) static_cast<void>(fields.next());
  const auto category = fields.next();
  return category ? std::optional(leadingNumber(*category)) : std::nullopt;
}

/// Numbers of classes, as many as a line of a message takes.
class ClassNumbers {
 public:
  void add(std::int32_t k) {
    constexpr std::size_t kLongest = 60;
    if (text_.size() > kLongest) return;
    text_ += (text_.empty() ? "" : ", ") + std::to_string(k + 1);
    if (text_.size() > kLongest) text_ += ", ...";
  }
  /// The sentence with the numbers behind it; "" without any.
  [[nodiscard]] std::string after(std::string_view sentence) const {
    return text_.empty() ? "" : std::string(sentence).append(text_).append(".\n");
  }

 private:
  std::string text_;
};

std::string oddClassLines(LineScanner& lines, const Contest& contest) {
  ClassNumbers lost;
  ClassNumbers copies;
  std::string_view before;
  static_cast<void>(lines.next());
  for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
    const std::string_view line = lines.next().value_or("");
    const auto category = categoryOf(line);
    const bool exists = category && *category >= 0 &&
                        static_cast<std::size_t>(*category) < contest.categories.size();
    if (!exists) lost.add(k);
    if (k > 0 && line == before) copies.add(k);
    before = line;
  }
  return lost.after("The category of these classes does not exist, so they have the first one: ") +
         copies.after("These classes are the same as the one before, to the letter: ");
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

// Stored placing scores are taken as they are, so they tell when the line of a class is another's.
std::string oddPlacingScores(const Contest& contest) {
  if (contest.scores.empty()) return "";
  const std::vector<bool> fitting = fittingClasses(contest);
  ClassNumbers odd;
  std::string exchanged;
  for (std::size_t i = 0; i < fitting.size(); ++i) {
    const auto k = static_cast<std::int32_t>(i);
    if (!fitting[i]) odd.add(k);
    if (i == 0 || !exchanged.empty() || (fitting[i - 1] && fitting[i])) continue;
    if (!fitsAs(contest, k - 1, k) || !fitsAs(contest, k, k - 1)) continue;
    exchanged = formatText("Placing scores fit when classes %d and %d are exchanged.\n", k, k + 1);
  }
  return odd.after("Placing scores do not fit the official placing and cuts of these classes: ") +
         exchanged;
}

}  // namespace

std::string contestOddities(std::string_view bytes, const Contest& contest) {
  LineScanner lines(bytes);
  std::string odd = oddSettings(lines);
  odd += oddClassLines(lines, contest);
  return odd + oddPlacingScores(contest);
}

}  // namespace scorvane
