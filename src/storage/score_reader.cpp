#include "storage/score_reader.h"

#include <algorithm>
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
    const auto line = lines.nextRecord();
    if (!line) return false;
    collector.add(parseScoreLine(*line));
  }
  contest.scores = collector.take();
  return true;
}
