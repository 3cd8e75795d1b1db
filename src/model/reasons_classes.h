// The classes in which contestants give oral reasons.
#pragma once

#include <cstdint>
#include <vector>

#include "model/contest.h"

/// Indexes (from 0, ascending) of the classes whose reasons flag is set.
[[nodiscard]] std::vector<std::int32_t> reasonsClasses(const JudgingClasses& classes);
