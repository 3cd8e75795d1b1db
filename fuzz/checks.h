// What fuzz targets hold to be true whatever comes in.
#pragma once

#include <string>
#include <string_view>

#include "model/contest.h"

namespace scorvane {

/// Ends the run with a message when a promise is broken.
void require(bool holds, std::string_view promise);

/// The contest that saved bytes hold; they must be readable.
[[nodiscard]] Contest readAgain(const std::string& bytes);

}  // namespace scorvane
