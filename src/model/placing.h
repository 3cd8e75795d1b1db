// Placing letters, cuts and the placing score of a class of four animals.
//
// A placing is an order of the four animals, best first, named by one letter: A to X number the
// 24 orders of 1-2-3-4 in ascending order (A = 1234, X = 4321). A cut is what a contestant loses
// for reversing a pair that the officials placed next to each other.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace scorvane {

/// A placing letter: 'A' to 'X' is an order, 'Z' a placing given a zero, ' ' nothing entered.
using PlacingLetter = char;

inline constexpr PlacingLetter kNoLetter = ' ';
inline constexpr PlacingLetter kZeroLetter = 'Z';
inline constexpr std::int32_t kTopScore = 50;

/// The three cuts of a class: between the official first and second animals, second and third,
/// third and fourth.
struct Cuts {
  std::int32_t cut1 = 0;
  std::int32_t cut2 = 0;
  std::int32_t cut3 = 0;
  friend bool operator==(const Cuts&, const Cuts&) = default;
};

/// Whether the letter names an order ('A' to 'X').
[[nodiscard]] bool isOrderLetter(PlacingLetter letter);

/// The four animal numbers (1 to 4) of a letter, best first; four zeros for a letter
/// outside 'A' to 'X'.
[[nodiscard]] std::array<std::int32_t, 4> orderOfLetter(PlacingLetter letter);

/// The placing score by the cut rule: 50 less, for every pair of animals that the contestant has
/// the other way round than the officials, the cuts between the two official positions.
/// 0 when either letter is outside 'A' to 'X'. At most 50 with cuts of 0 and more; not clamped
/// below 0.
[[nodiscard]] std::int32_t placingScore(PlacingLetter contestantLetter,
                                        PlacingLetter officialLetter, const Cuts& cuts);

/// A pair of animals that a contestant has the other way round than the officials, and what it
/// cost: `first` was placed above `second`.
struct LostPair {
  std::int32_t first = 0;
  std::int32_t second = 0;
  std::int32_t points = 0;
  friend bool operator==(const LostPair&, const LostPair&) = default;
};

/// Where the points of a placing went: the pairs that cost any, neighbours in the contestant's
/// order first. Their points add up (modulo 2^32) to 50 less the placing score. None when either
/// letter is outside 'A' to 'X'.
[[nodiscard]] std::vector<LostPair> lostPairs(PlacingLetter contestantLetter,
                                              PlacingLetter officialLetter, const Cuts& cuts);

/// Whether a class's cuts are legal: their total at most 15; with a total of 15 the middle cut at
/// most 5, with 14 at most 8. The values are unsigned, as a field of digits holds them.
///
/// Odd but required, docs/required-behaviour.md: cuts-can-cost-more-than-fifty
[[nodiscard]] bool validateCuts(std::uint32_t cut1, std::uint32_t cut2, std::uint32_t cut3);

}  // namespace scorvane
