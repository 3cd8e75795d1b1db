// A placing letter as it is typed into a score field.
#pragma once

#include <optional>
#include <string>

#include "model/contest.h"

namespace scorvane {

/// What is wrong with the typed text: more than one letter, or one that is neither a placing nor
/// "Z". Nothing when it can be stored, and when it is empty.
[[nodiscard]] std::optional<std::string> letterError(const std::string& typed);

/// Stores a typed letter, one that letterError() accepts, and its placing score in a contestant's
/// record of a class (index from 0). An empty text leaves the record as it is.
void storeLetter(Contest& contest, ContestantNumber number, std::int32_t classIndex,
                 const std::string& typed);

}  // namespace scorvane
