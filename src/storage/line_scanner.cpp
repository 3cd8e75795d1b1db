#include "storage/line_scanner.h"

#include <algorithm>
#include <cstring>

LineScanner::LineScanner(std::string_view bytes)
    : bytes_(bytes), hasNul_(bytes.find('\0') != std::string_view::npos) {}

std::optional<std::string_view> LineScanner::next() {
  const std::size_t end = bytes_.find('\r', position_);
  if (end == std::string_view::npos || end + 1 == bytes_.size()) {
    position_ = bytes_.size();
    return std::nullopt;
  }
  if (bytes_[end + 1] != '\n') return nextPiecewise();
  const std::string_view line = bytes_.substr(position_, end - position_);
  position_ = end + 2;
  return withinLimits(line);
}

// A line with CRs in it that do not end it: the pieces between them are put together.
std::optional<std::string_view> LineScanner::nextPiecewise() {
  pieces_.clear();
  for (;;) {
    const std::size_t end = bytes_.find('\r', position_);
    if (end == std::string_view::npos || end + 1 == bytes_.size()) {
      position_ = bytes_.size();
      return std::nullopt;
    }
    const std::string_view piece = bytes_.substr(position_, end - position_);
    pieces_.append(piece.substr(0, kMaxLine - pieces_.size()));
    position_ = end + 1;
    if (bytes_[position_] != '\n') continue;
    ++position_;
    return withinLimits(pieces_);
  }
}

std::string_view LineScanner::withinLimits(std::string_view line) const {
  line = line.substr(0, kMaxLine);
  return hasNul_ ? line.substr(0, line.find('\0')) : line;
}
