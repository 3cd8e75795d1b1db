// Reasons groups stand side by side on paper, at most eight to a page width.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/reasons_order.h"

namespace scorvane {

/// The groups `first` up to, but not including, `end`, counted from 0.
struct ReasonsBand {
  std::int32_t first = 0;
  std::int32_t end = 0;
  [[nodiscard]] std::int32_t width() const { return end - first; }
};

/// Splits the groups into as few bands of at most eight as will do, evenly, the last band taking
/// what is left: 10 gives 5 and 5, 17 gives 6, 6 and 5. Always at least one band, an empty one
/// without groups.
[[nodiscard]] std::vector<ReasonsBand> reasonsBands(std::int32_t groups);

/// Appends what stands between two bands, so that each starts a printed page of its own.
void appendBandBreak(std::string& out);

}  // namespace scorvane
