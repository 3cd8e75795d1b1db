// The score lines of a contest file.
#pragma once

#include <cstdint>

#include "model/contest.h"
#include "storage/line_scanner.h"

namespace scorvane {

/// Reads `lineCount` score lines into the contest, whose classes and contestants are known by now.
/// Records of classes and contestants that do not exist are ignored; of several records of one
/// contestant and class the last one counts. Without classes every contestant gets an entry
/// without records. False when the lines end early.
[[nodiscard]] bool readScores(LineScanner& lines, std::int64_t lineCount, Contest& contest);

}  // namespace scorvane
