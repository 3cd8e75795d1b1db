// Which classes there are, and the lines that lists show them in.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// Indexes (from 0, ascending) of all classes, of those with reasons and of those with questions.
[[nodiscard]] std::vector<std::int32_t> allClasses(const JudgingClasses& classes);
[[nodiscard]] std::vector<std::int32_t> reasonsClasses(const JudgingClasses& classes);
[[nodiscard]] std::vector<std::int32_t> questionsClasses(const JudgingClasses& classes);

/// Whether the contest has categories: the placeholder of a contest without any is none.
[[nodiscard]] bool hasCategories(const Contest& contest);

/// Bytes that a contest's file has for the names of the categories, each with a TAB before it.
inline constexpr std::size_t kCategoriesRoom = 486;

/// Whether the names have room on their line of the file.
[[nodiscard]] bool categoriesFit(const std::vector<std::string>& categories);

/// The classes of each category, one entry a category and one at least. A class without a category
/// of its own is one of the first.
[[nodiscard]] std::vector<std::vector<std::int32_t>> classesByCategory(const Contest& contest);

/// A class as lists show it: its number, counted from 1 among all classes, and its name.
[[nodiscard]] std::string classLine(const JudgingClasses& classes, std::int32_t index);

/// The lines of several classes.
[[nodiscard]] std::vector<std::string> classLines(const JudgingClasses& classes,
                                                  const std::vector<std::int32_t>& indexes);

}  // namespace scorvane
