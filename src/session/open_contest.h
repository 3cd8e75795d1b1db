// The open contest: the contest itself, its file and the report on screen. There is exactly one of
// each. Only commands and dialogs use them; everything below gets what it needs as arguments.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

[[nodiscard]] Contest& currentContest();

/// Path of the file the current contest was loaded from or saved to, at most kMaxPathLength
/// characters; empty while the contest is untitled.
[[nodiscard]] std::string& currentFileName();

/// The folder of the current file, where file dialogs begin; empty while the contest is untitled.
[[nodiscard]] std::string contestFolder();

/// The report that is shown, printed, copied and saved: 8-bit text, lines ended by LF; may contain
/// tabs. The welcome text at start.
[[nodiscard]] std::string& reportText();

}  // namespace scorvane
