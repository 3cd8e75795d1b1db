#include "model/class_lists.h"

#include <algorithm>

#include "text/format.h"

namespace scorvane {

namespace {

template <typename Condition>
std::vector<std::int32_t> classesWith(const JudgingClasses& classes, Condition condition) {
  std::vector<std::int32_t> indexes;
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    if (condition(k)) indexes.push_back(k);
  }
  return indexes;
}

}  // namespace

std::vector<std::int32_t> allClasses(const JudgingClasses& classes) {
  return classesWith(classes, [](std::int32_t) { return true; });
}

std::vector<std::int32_t> reasonsClasses(const JudgingClasses& classes) {
  return classesWith(classes, [&](std::int32_t k) { return classes.hasReasons(k); });
}

std::vector<std::int32_t> questionsClasses(const JudgingClasses& classes) {
  return classesWith(classes, [&](std::int32_t k) { return classes.hasQuestions(k); });
}

bool hasCategories(const Contest& contest) {
  const std::vector<std::string>& names = contest.categories;
  return names.size() > 1 || (names.size() == 1 && names[0] != kNoCategory);
}

bool categoriesFit(const std::vector<std::string>& categories) {
  std::size_t length = 0;
  for (const std::string& name : categories) length += 1 + name.size();
  return length <= kCategoriesRoom;
}

std::vector<std::vector<std::int32_t>> classesByCategory(const Contest& contest) {
  std::vector<std::vector<std::int32_t>> members(
      std::max<std::size_t>(contest.categories.size(), 1));
  for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
    const std::int32_t category = contest.classes.category(k);
    const bool exists = category >= 0 && static_cast<std::size_t>(category) < members.size();
    members[exists ? static_cast<std::size_t>(category) : 0].push_back(k);
  }
  return members;
}

std::string classLine(const JudgingClasses& classes, std::int32_t index) {
  return formatText("%2d.  %s", index + 1, classes.name(index).c_str());
}

std::vector<std::string> classLines(const JudgingClasses& classes,
                                    const std::vector<std::int32_t>& indexes) {
  std::vector<std::string> lines;
  lines.reserve(indexes.size());
  for (const std::int32_t index : indexes) lines.push_back(classLine(classes, index));
  return lines;
}

}  // namespace scorvane
