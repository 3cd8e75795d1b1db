// What a contest file can be read with, but was hardly written with.
#pragma once

#include <string>
#include <string_view>

#include "model/contest.h"

namespace scorvane {

/// What a reader should hear about a file that was read: settings without a line, categories that
/// classes lack, classes whose scores fit when two of them are exchanged. One line each, ended by
/// LF; empty for every file the program writes.
[[nodiscard]] std::string contestOddities(std::string_view bytes, const Contest& contest);

}  // namespace scorvane
