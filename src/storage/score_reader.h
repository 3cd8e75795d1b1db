// The score lines of a contest file.
#pragma once

#include <cstdint>
#include <string_view>

#include "model/contest.h"
#include "storage/line_scanner.h"

namespace scorvane {

/// A contestant's record for a class (index from 0), as a score line holds it.
struct ScoreLine {
  ContestantNumber number = 0;
  std::int32_t classIndex = 0;
  ScoreRecord record;
};

/// Reads a score line; fields behind its six are ignored.
[[nodiscard]] ScoreLine parseScoreLine(std::string_view line);

/// Reads the score lines into the contest, whose classes and contestants are known by now: exactly
/// one for each contestant and class, in any order, all with as many fields. Without classes every
/// contestant gets an entry without records. Returns the number of the line that is wrong, 0 for
/// none.
[[nodiscard]] std::int64_t readScores(LineScanner& lines, Contest& contest);

/// Reads up to `lineCount` score lines of a damaged file: those of unknown contestants and classes
/// are ignored, and of several of one contestant and class the last one counts.
void readScoresLeft(LineScanner& lines, std::int64_t lineCount, Contest& contest);

}  // namespace scorvane
