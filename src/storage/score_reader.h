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

/// Reads `lineCount` score lines into the contest, whose classes and contestants are known by now.
/// Records of classes and contestants that do not exist are ignored; of several records of one
/// contestant and class the last one counts. Without classes every contestant gets an entry
/// without records. False when the lines end early.
[[nodiscard]] bool readScores(LineScanner& lines, std::int64_t lineCount, Contest& contest);

}  // namespace scorvane
