// The open contest: the contest itself, its file and the report on screen. There is exactly one of
// each. Only commands and dialogs reach for them and hand what they need to everything below.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

[[nodiscard]] Contest& currentContest();

/// Path of the file the current contest was loaded from or saved to, at most kMaxPathLength
/// bytes; empty while the contest is untitled.
[[nodiscard]] std::string& currentFileName();

/// What is shown, printed, copied and saved: plain 8-bit text, lines ended by LF; tabs may occur.
/// Holds the welcome text at start.
[[nodiscard]] std::string& reportText();

}  // namespace scorvane
