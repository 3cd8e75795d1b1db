#include "storage/score_reader.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "text/number.h"

namespace {

struct ScoreLine {
  ContestantNumber number = 0;
  std::int32_t classIndex = 0;
  ScoreRecord record;
};

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

/// Takes apart a score line that stands just as it is written. Nearly all lines of a large file are
/// such lines, and taking them in one pass, without looking for fields first, halves the time that
/// loading takes. Anything else is left to parseScoreLine().
class WrittenScoreLine {
 public:
  /// Every line as it is written is shorter, so a field needs no look at the end of the bytes.
  static constexpr std::size_t kLongest = 64;

  /// Gives the length of the line with its end; 0 when it stands otherwise, or when fewer than
  /// kLongest bytes are left.
  static std::size_t parse(std::string_view bytes, ScoreLine& score) {
    if (bytes.size() < kLongest) return 0;
    WrittenScoreLine line(bytes.data());
    const bool asWritten =
        line.number(score.number) && line.skip('\t') && line.number(score.classIndex) &&
        line.skip('\t') && line.letter(score.record.letter) && line.skip('\t') &&
        line.number(score.record.placingScore) && line.skip('\t') &&
        line.number(score.record.reasonsScore) && line.skip('\t') &&
        line.number(score.record.questionsScore) && line.skip('\r') && line.skip('\n');
    return asWritten ? static_cast<std::size_t>(line.at_ - bytes.data()) : 0;
  }

 private:
  explicit WrittenScoreLine(const char* at) : at_(at) {}

  bool skip(char character) { return *at_++ == character; }

  bool letter(PlacingLetter& letter) {
    letter = *at_++;
    return letter >= ' ' && letter <= '~';
  }

  bool number(std::int32_t& number) {
    constexpr std::ptrdiff_t kSafeDigits = 9;
    const bool negative = *at_ == '-';
    if (negative) ++at_;
    const char* first = at_;
    std::uint32_t value = 0;
    while (*at_ >= '0' && *at_ <= '9' && at_ - first < kSafeDigits) {
      value = value * 10 + static_cast<std::uint32_t>(*at_++ - '0');
    }
    number = negative ? -static_cast<std::int32_t>(value) : static_cast<std::int32_t>(value);
    // Of a longer number a digit is left where the field should end, and the line is not taken.
    return at_ > first;
  }

  const char* at_;
};

/// The next score line, as it is written or otherwise; nothing when there is none.
std::optional<ScoreLine> nextScoreLine(LineScanner& lines) {
  ScoreLine score;
  if (const std::size_t length = WrittenScoreLine::parse(lines.rest(), score); length > 0) {
    lines.skip(length);
    return score;
  }
  const auto line = lines.nextRecord();
  return line ? std::optional(parseScoreLine(*line)) : std::nullopt;
}

/// Gathers the records of contestants; the lines of one contestant usually stand together, and
/// contestants in ascending order, so that nothing needs sorting.
class ScoreCollector {
 public:
  explicit ScoreCollector(const Contest& contest) : contest_(contest) {}

  void add(const ScoreLine& score) {
    if (score.number != number_) endRun();
    number_ = score.number;
    if (score.classIndex < 0 || score.classIndex >= contest_.classes.count()) return;
    run_.emplace_back(score.classIndex, score.record);
  }

  FlatMap<ContestantNumber, ClassScores> take() {
    endRun();
    const auto notAscending = [](const Run& a, const Run& b) { return a.first >= b.first; };
    if (std::adjacent_find(runs_.begin(), runs_.end(), notAscending) != runs_.end()) joinRuns();
    return FlatMap<ContestantNumber, ClassScores>::fromEntries(std::move(runs_));
  }

 private:
  using Run = std::pair<ContestantNumber, ClassScores>;

  void endRun() {
    if (!run_.empty() && contest_.contestantNames.contains(number_)) {
      runs_.emplace_back(number_, ClassScores::fromEntries({run_.begin(), run_.end()}));
    }
    run_.clear();
  }

  // Lines of one contestant that stand apart belong together all the same.
  void joinRuns() {
    std::stable_sort(runs_.begin(), runs_.end(),
                     [](const Run& a, const Run& b) { return a.first < b.first; });
    std::vector<Run> joined;
    for (std::size_t first = 0; first < runs_.size();) {
      std::vector<ClassScores::Entry> records;
      std::size_t next = first;
      for (; next < runs_.size() && runs_[next].first == runs_[first].first; ++next) {
        records.insert(records.end(), runs_[next].second.begin(), runs_[next].second.end());
      }
      joined.emplace_back(runs_[first].first, ClassScores::fromEntries(std::move(records)));
      first = next;
    }
    runs_ = std::move(joined);
  }

  const Contest& contest_;
  ContestantNumber number_ = 0;
  std::vector<ClassScores::Entry> run_;
  std::vector<Run> runs_;
};

}  // namespace

bool readScores(LineScanner& lines, std::int64_t lineCount, Contest& contest) {
  ScoreCollector collector(contest);
  for (std::int64_t i = 0; i < lineCount; ++i) {
    const auto score = nextScoreLine(lines);
    if (!score) return false;
    collector.add(*score);
  }
  contest.scores = collector.take();
  // Contestants have an entry, and so a rank, before there are classes.
  if (contest.classes.count() == 0) {
    for (const auto& entry : contest.contestantNames) contest.scores[entry.first];
  }
  return true;
}
