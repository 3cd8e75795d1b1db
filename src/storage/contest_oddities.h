// What a contest file can be read with, but was hardly written with.
#pragma once

#include <string>
#include <string_view>

#include "model/contest.h"

namespace scorvane {

/// What a reader should hear about a file that was read: settings without a line or value,
/// categories that classes lack, classes that are copies of the one before or whose placing scores
/// are not those of their official placing and cuts. One line each, ended by LF; empty for a file
/// that the program writes unless two classes were set up alike.
[[nodiscard]] std::string contestOddities(std::string_view bytes, const Contest& contest);

}  // namespace scorvane
