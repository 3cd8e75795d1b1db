#include "storage/line_scanner.h"

#include <algorithm>

namespace scorvane {

namespace {

std::string_view withinLimits(std::string_view line) {
  line = line.substr(0, LineScanner::kMaxLine);
  return line.substr(0, line.find('\0'));
}

}  // namespace

std::optional<std::string_view> LineScanner::next() {
  const std::size_t end = rest_.find('\r');
  if (end == std::string_view::npos || end + 1 == rest_.size() || rest_[end + 1] != '\n') {
    return nextWithoutReturns();
  }
  const std::string_view line = rest_.substr(0, end);
  skip(end + 2);
  return withinLimits(line);
}

// A line with CRs that do not end it: the pieces between them are joined.
std::optional<std::string_view> LineScanner::nextWithoutReturns() {
  joined_.clear();
  for (;;) {
    const std::size_t end = rest_.find('\r');
    const std::string_view piece = rest_.substr(0, end);
    joined_ += piece.substr(0, kMaxLine - joined_.size());
    skip(std::min(piece.size() + 1, rest_.size()));
    if (rest_.empty()) return std::nullopt;
    if (rest_.front() != '\n') continue;
    skip(1);
    return withinLimits(joined_);
  }
}

}  // namespace scorvane
