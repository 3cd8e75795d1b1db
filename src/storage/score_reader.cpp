#include "storage/score_reader.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "text/number.h"

namespace scorvane {

namespace {

/// Longer than any written line: with this much left, no bounds checks.
constexpr std::size_t kLongestWritten = 64;

/// Reads a number as it is written, and the character that must follow. Returns the position after
/// both; null when something else is there. A number of more than nine digits could be too large:
/// it is left to parseScoreLine().
const char* takeNumber(const char* at, char following, std::int32_t& number) {
  constexpr std::size_t kSafeDigits = 9;
  const bool negative = *at == '-';
  if (negative) ++at;
  std::uint32_t value = 0;
  std::size_t digits = 0;
  for (; digits < kSafeDigits; ++digits) {
    const auto digit = static_cast<std::uint32_t>(at[digits] - '0');
    if (digit > 9) break;
    value = value * 10 + digit;
  }
  number = static_cast<std::int32_t>(negative ? 0 - value : value);
  return digits > 0 && at[digits] == following ? at + digits + 1 : nullptr;
}

/// Reads a score line that is exactly as it is written. Returns its length with its end; 0 when it
/// is anything else, which is left to parseScoreLine(). Nearly all lines of a large file are
/// written ones. Reading them in one pass, without looking for lines and fields first, pays:
/// without it, two reports of 100,000 contestants take 34 % longer, and of 1,000 13 %.
std::size_t parseWrittenLine(std::string_view bytes, ScoreLine& score) {
  if (bytes.size() < kLongestWritten) return 0;
  const char* at = takeNumber(bytes.data(), '\t', score.number);
  if (at != nullptr) at = takeNumber(at, '\t', score.classIndex);
  if (at == nullptr || at[0] < ' ' || at[0] > '~' || at[1] != '\t') return 0;
  score.record.letter = at[0];
  at = takeNumber(at + 2, '\t', score.record.placingScore);
  if (at != nullptr) at = takeNumber(at, '\t', score.record.reasonsScore);
  if (at != nullptr) at = takeNumber(at, '\r', score.record.questionsScore);
  if (at == nullptr || *at != '\n') return 0;
  return static_cast<std::size_t>(at + 1 - bytes.data());
}

/// The number of fields of a line, at most the six that count.
int countFields(std::string_view line) {
  constexpr int kMost = 6;
  return static_cast<int>(
      std::min<std::ptrdiff_t>(std::count(line.begin(), line.end(), '\t') + 1, kMost));
}

/// The next score line and its number of fields; none at the end.
std::optional<ScoreLine> nextScore(LineScanner& lines, int& fields) {
  ScoreLine score;
  if (const std::size_t length = parseWrittenLine(lines.rest(), score); length > 0) {
    lines.skip(length);
    fields = 6;
    return score;
  }
  const auto line = lines.nextRecord();
  if (!line) return std::nullopt;
  fields = countFields(*line);
  return parseScoreLine(*line);
}

/// Whether a line has a contestant and a class, and as many fields as the lines before: one that
/// was cut off would take scores away, and the trailer is no score.
class FieldCheck {
 public:
  bool fits(int fields) {
    if (known_ == 0) known_ = fields;
    return fields > 1 && fields == known_;
  }

 private:
  int known_ = 0;
};

using Scores = FlatMap<ContestantNumber, ClassScores>;

/// Reads scores in the order in which they are written. False when they come otherwise.
bool readInOrder(LineScanner& lines, Contest& contest) {
  FieldCheck check;
  std::vector<Scores::Entry> scores;
  scores.reserve(contest.contestantNames.size());
  for (const auto& contestant : contest.contestantNames) {
    std::vector<ClassScores::Entry> records;
    records.reserve(static_cast<std::size_t>(contest.classes.count()));
    for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
      int fields = 0;
      const auto score = nextScore(lines, fields);
      if (!score || !check.fits(fields)) return false;
      if (score->number != contestant.first || score->classIndex != k) return false;
      records.emplace_back(k, score->record);
    }
    scores.emplace_back(contestant.first, ClassScores::fromEntries(std::move(records)));
  }
  contest.scores = Scores::fromEntries(std::move(scores));
  return true;
}

bool isKnown(const ScoreLine& score, const Contest& contest) {
  return score.classIndex >= 0 && score.classIndex < contest.classes.count() &&
         contest.contestantNames.contains(score.number);
}

bool isBefore(const ScoreLine& a, const ScoreLine& b) {
  return std::tie(a.number, a.classIndex) < std::tie(b.number, b.classIndex);
}

/// Stores lines that are sorted; of several of one contestant and class the last one counts.
void store(const std::vector<ScoreLine>& sorted, Contest& contest) {
  std::vector<Scores::Entry> scores;
  for (auto first = sorted.begin(); first != sorted.end();) {
    std::vector<ClassScores::Entry> records;
    const ContestantNumber number = first->number;
    for (; first != sorted.end() && first->number == number; ++first) {
      records.emplace_back(first->classIndex, first->record);
    }
    scores.emplace_back(number, ClassScores::fromEntries(std::move(records)));
  }
  contest.scores = Scores::fromEntries(std::move(scores));
}

/// Reads as many scores as there are contestants and classes, in any order. Returns how many lines
/// fitted before one did not; nothing when all did.
std::optional<std::int64_t> readInAnyOrder(LineScanner& lines, std::int64_t lineCount,
                                           Contest& contest) {
  FieldCheck check;
  std::vector<ScoreLine> read;
  std::vector<std::size_t> order;
  for (std::int64_t i = 0; i < lineCount; ++i) {
    int fields = 0;
    const auto score = nextScore(lines, fields);
    if (!score || !check.fits(fields) || !isKnown(*score, contest)) break;
    order.push_back(read.size());
    read.push_back(*score);
  }
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return isBefore(read[a], read[b]); });
  std::size_t fitting = read.size();
  for (std::size_t i = 1; i < order.size(); ++i) {
    if (!isBefore(read[order[i - 1]], read[order[i]])) fitting = std::min(fitting, order[i]);
  }
  if (static_cast<std::int64_t>(fitting) < lineCount) return static_cast<std::int64_t>(fitting);
  std::vector<ScoreLine> sorted;
  sorted.reserve(read.size());
  for (const std::size_t i : order) sorted.push_back(read[i]);
  store(sorted, contest);
  return std::nullopt;
}

// Contestants have an entry, and so a rank, before there are classes.
void addWithoutClasses(Contest& contest) {
  if (contest.classes.count() > 0) return;
  for (const auto& entry : contest.contestantNames) contest.scores[entry.first];
}

}  // namespace

ScoreLine parseScoreLine(std::string_view line) {
  FieldScanner fields(line);
  ScoreLine score;
  score.number = leadingNumber(fields.nextOrEmpty());
  score.classIndex = leadingNumber(fields.nextOrEmpty());
  const std::string_view letter = fields.nextOrEmpty();
  if (letter.empty()) return score;
  score.record.letter = letter.front();
  score.record.placingScore = leadingNumber(fields.nextOrEmpty());
  score.record.reasonsScore = leadingNumber(fields.nextOrEmpty());
  score.record.questionsScore = leadingNumber(fields.nextOrEmpty());
  return score;
}

std::int64_t readScores(LineScanner& lines, Contest& contest) {
  const LineScanner start = lines;
  if (!readInOrder(lines, contest)) {
    lines = start;
    const auto lineCount = std::int64_t{contest.classes.count()} *
                           static_cast<std::int64_t>(contest.contestantNames.size());
    const auto fitting = readInAnyOrder(lines, lineCount, contest);
    if (fitting) return start.lineNumber() + *fitting + 1;
  }
  addWithoutClasses(contest);
  const auto line = lines.next();
  return line && line->find('\t') != std::string_view::npos ? lines.lineNumber() : 0;
}

void readScoresLeft(LineScanner& lines, std::int64_t lineCount, Contest& contest) {
  std::vector<ScoreLine> read;
  int fields = 0;
  for (std::int64_t i = 0; i < lineCount; ++i) {
    const auto score = nextScore(lines, fields);
    if (!score) break;
    if (isKnown(*score, contest)) read.push_back(*score);
  }
  std::stable_sort(read.begin(), read.end(), isBefore);
  store(read, contest);
  addWithoutClasses(contest);
}

}  // namespace scorvane
