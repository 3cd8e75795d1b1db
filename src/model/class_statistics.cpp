#include "model/class_statistics.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace scorvane {

namespace {

// Whether the order of a letter has one animal above another.
bool isAbove(PlacingLetter letter, std::int32_t first, std::int32_t second) {
  const auto order = orderOfLetter(letter);
  return std::find(order.begin(), order.end(), first) <
         std::find(order.begin(), order.end(), second);
}

std::vector<NeighbourPair> neighbourPairs(const std::vector<GivenPlacing>& given,
                                          PlacingLetter official) {
  std::vector<NeighbourPair> pairs;
  if (!isOrderLetter(official)) return pairs;
  const auto order = orderOfLetter(official);
  for (std::size_t i = 0; i + 1 < order.size(); ++i) {
    NeighbourPair pair{order[i], order[i + 1], 0};
    for (const GivenPlacing& placing : given) {
      const bool right =
          isOrderLetter(placing.letter) && isAbove(placing.letter, pair.first, pair.second);
      if (right) pair.right += placing.count;
    }
    pairs.push_back(pair);
  }
  return pairs;
}

void addPlacing(ClassStatistics& statistics, std::array<GivenPlacing, 256>& byLetter,
                const ScoreRecord& record) {
  const std::int32_t score = record.placingScore;
  const bool isFirst = statistics.placings.count == 0;
  statistics.placings.add(score);
  statistics.highest = isFirst ? score : std::max(statistics.highest, score);
  statistics.lowest = isFirst ? score : std::min(statistics.lowest, score);
  if (score == kTopScore) ++statistics.perfect;
  if (isOrderLetter(record.letter)) ++statistics.placed;
  GivenPlacing& placing = byLetter.at(static_cast<unsigned char>(record.letter));
  if (placing.count++ == 0) {
    placing.letter = record.letter;
    placing.score = score;
  }
}

}  // namespace

CardsByClass::CardsByClass(const Contest& contest)
    : contest_(contest), ends_(static_cast<std::size_t>(contest.classes.count())) {
  const auto visit = [&](auto act) {
    for (const auto& [number, records] : contest.scores) {
      if (contestantName(contest, number).empty()) continue;
      for (const auto& [classIndex, record] : records) {
        const bool exists = classIndex >= 0 && classIndex < contest.classes.count();
        if (exists) act(static_cast<std::size_t>(classIndex), Card{number, &record});
      }
    }
  };
  // Counted first: then each class's cards have their positions, and each goes to the next one.
  visit([&](std::size_t k, const Card&) { ++ends_[k]; });
  std::size_t begin = 0;
  for (std::size_t& end : ends_) begin += std::exchange(end, begin);
  cards_.resize(begin);
  visit([&](std::size_t k, const Card& card) { cards_[ends_[k]++] = card; });
}

std::span<const CardsByClass::Card> CardsByClass::of(std::int32_t classIndex) const {
  const auto k = static_cast<std::size_t>(classIndex);
  const std::size_t begin = k == 0 ? 0 : ends_[k - 1];
  return std::span(cards_).subspan(begin, ends_[k] - begin);
}

ClassStatistics CardsByClass::statistics(std::int32_t classIndex) const {
  ClassStatistics statistics;
  statistics.classIndex = classIndex;
  std::array<GivenPlacing, 256> byLetter{};
  for (const auto& [number, record] : of(classIndex)) {
    if (record->letter != kNoLetter) addPlacing(statistics, byLetter, *record);
    if (record->reasonsScore != 0) statistics.reasons.add(record->reasonsScore);
    if (record->questionsScore != 0) statistics.questions.add(record->questionsScore);
  }
  std::vector<GivenPlacing>& given = statistics.given;
  std::copy_if(byLetter.begin(), byLetter.end(), std::back_inserter(given),
               [](const GivenPlacing& placing) { return placing.count > 0; });
  std::stable_sort(given.begin(), given.end(),
                   [](const GivenPlacing& a, const GivenPlacing& b) { return a.count > b.count; });
  statistics.pairs = neighbourPairs(given, contest_.classes.official(classIndex));
  return statistics;
}

std::optional<LikelierPlacing> likelierPlacing(const ClassStatistics& statistics,
                                               PlacingLetter official, const Cuts& cuts) {
  constexpr std::int32_t kFewestCards = 10;
  std::optional<LikelierPlacing> likelier;
  if (statistics.placed < kFewestCards || !isOrderLetter(official)) return likelier;
  std::int64_t highestSum = 0;
  for (PlacingLetter other = 'A'; isOrderLetter(other); ++other) {
    std::int32_t better = 0;
    std::int64_t sum = 0;
    for (const auto& [letter, count, score] : statistics.given) {
      const std::int32_t otherScore = placingScore(letter, other, cuts);
      if (isOrderLetter(letter) && otherScore > placingScore(letter, official, cuts)) {
        better += count;
      }
      sum += std::int64_t{count} * otherScore;
    }
    const bool most = std::int64_t{2} * better > statistics.placed;
    if (!most || (likelier && sum <= highestSum)) continue;
    likelier = {other, better};
    highestSum = sum;
  }
  return likelier;
}

}  // namespace scorvane
