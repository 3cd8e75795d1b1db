// The settings lines that a contest file begins with.
#pragma once

#include "model/contest.h"
#include "storage/line_scanner.h"

namespace scorvane {

/// Reads settings up to and including the line that begins the classes. The contest holds the
/// values of a new one, which stay for keys without a line. False when that line does not come
/// within 16 lines.
[[nodiscard]] bool readSettings(LineScanner& lines, Contest& contest);

}  // namespace scorvane
