#include "reasons/reasons_bands.h"

#include <algorithm>
#include <cstddef>

#include "text/report_marks.h"

namespace scorvane {

std::vector<ReasonsBand> reasonsBands(std::int32_t groups) {
  constexpr std::int32_t kWidest = 8;
  const std::int32_t shown = std::clamp(groups, 0, kMostReasonsGroupsShown);
  const std::int32_t count = std::max((shown + kWidest - 1) / kWidest, 1);
  const std::int32_t width = (shown + count - 1) / count;
  std::vector<ReasonsBand> bands;
  bands.reserve(static_cast<std::size_t>(count));
  for (std::int32_t b = 0; b < count; ++b) {
    bands.push_back({b * width, std::min((b + 1) * width, shown)});
  }
  return bands;
}

void appendBandBreak(std::string& out) {
  out += kPageBreakLine;
  out += "\n\n\n";
}

}  // namespace scorvane
