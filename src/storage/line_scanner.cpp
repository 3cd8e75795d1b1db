#include "storage/line_scanner.h"

namespace scorvane {

namespace {

std::string_view upToNul(std::string_view line) {
  return line.substr(0, line.find('\0'));
}

}  // namespace

std::optional<std::string_view> LineScanner::next() {
  skip(0);
  const std::size_t end = rest_.substr(0, kMaxLine + 1).find('\r');
  if (end == std::string_view::npos) return std::nullopt;
  if (end + 1 == rest_.size() || rest_[end + 1] != '\n') return nextWithoutReturns();
  const std::string_view line = rest_.substr(0, end);
  rest_.remove_prefix(end + 2);
  return upToNul(line);
}

// A line with CRs that do not end it: the pieces between them are joined.
std::optional<std::string_view> LineScanner::nextWithoutReturns() {
  joined_.clear();
  for (std::string_view rest = rest_;;) {
    const std::size_t end = rest.substr(0, kMaxLine + 1 - joined_.size()).find('\r');
    if (end == std::string_view::npos) return std::nullopt;
    joined_ += rest.substr(0, end);
    rest.remove_prefix(end + 1);
    if (rest.empty()) return std::nullopt;
    if (rest.front() != '\n') continue;
    rest_ = rest.substr(1);
    return upToNul(joined_);
  }
}

std::int64_t LineScanner::lineNumber() const {
  std::int64_t number = 1;
  std::string_view before = bytes_.substr(0, lineStart_);
  for (std::size_t end = 0; (end = before.find("\r\n")) != std::string_view::npos; ++number) {
    before.remove_prefix(end + 2);
  }
  return number;
}

}  // namespace scorvane
