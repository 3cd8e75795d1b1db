#include "model/reasons_classes.h"

std::vector<std::int32_t> reasonsClasses(const JudgingClasses& classes) {
  std::vector<std::int32_t> indexes;
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    if (classes.hasReasons(k)) indexes.push_back(k);
  }
  return indexes;
}
