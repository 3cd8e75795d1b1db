// The rules for breaking ties, in plain words for the officials.
#pragma once

#include <string>

namespace scorvane {

/// The same text for every contest. It has to stay in step with the rankings it describes.
[[nodiscard]] std::string tieBreakerReport();

}  // namespace scorvane
