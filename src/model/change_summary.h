// What was done to a contest from one save to the next, in one line.
#pragma once

#include <cstddef>
#include <string>

#include "model/contest.h"

namespace scorvane {

/// Such as "team Elm removed; +31 scores in class 3"; "nothing" when no saved value differs. At
/// most `width` characters, as far as the first item allows: what does not fit is only counted.
[[nodiscard]] std::string changeSummary(const Contest& before, const Contest& after,
                                        std::size_t width);

}  // namespace scorvane
