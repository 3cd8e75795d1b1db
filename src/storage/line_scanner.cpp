#include "storage/line_scanner.h"

#include <algorithm>
#include <cstring>

namespace scorvane {

namespace {

constexpr std::size_t kPiece = std::size_t{64} << 10;

bool containsNul(std::string_view bytes) {
  return bytes.find('\0') != std::string_view::npos;
}

}  // namespace

LineScanner::LineScanner(std::string_view bytes)
    : size_(bytes.size()), bytes_(bytes), hasNul_(containsNul(bytes)) {}

LineScanner::LineScanner(InputFile& file)
    : file_(&file), buffer_(kPiece), size_(static_cast<std::size_t>(file.size())) {}

/// Reads on. False when nothing more comes.
bool LineScanner::fill() {
  if (file_ == nullptr || failed_) return false;
  if (bytes_.size() == buffer_.size()) makeRoom();
  char* const room = buffer_.data() + bytes_.size();
  const auto count = file_->read(room, buffer_.size() - bytes_.size());
  const std::size_t added = count.value_or(0);
  bytes_ = {buffer_.data(), bytes_.size() + added};
  hasNul_ = hasNul_ || containsNul({room, added});
  read_ += added;
  size_ = std::max(size_, read_);
  failed_ = !count || read_ > kMaxFileSize;
  return !failed_ && added > 0;
}

/// Moves what is at hand to the front of the buffer.
void LineScanner::makeRoom() {
  const std::string kept(atHand());
  kept.copy(buffer_.data(), kept.size());
  // No line of a contest is that long, but a damaged file may consist of a single one.
  if (kept.size() > buffer_.size() / 2) buffer_.resize(buffer_.size() * 2);
  bytes_ = {buffer_.data(), kept.size()};
  position_ = 0;
}

/// The place of the next CR that another byte follows. Without one all bytes are passed over, and
/// nothing is given.
std::optional<std::size_t> LineScanner::findReturn() {
  std::size_t searched = 0;  // bytes at hand
  for (;;) {
    const std::size_t place = bytes_.find('\r', position_ + searched);
    if (place != std::string_view::npos && place + 1 < bytes_.size()) return place;
    searched = std::min(place, bytes_.size()) - position_;
    if (fill()) continue;
    position_ = bytes_.size();
    return std::nullopt;
  }
}

std::optional<std::string_view> LineScanner::next() {
  const auto found = findReturn();
  if (!found) return std::nullopt;
  const std::size_t end = *found;
  if (bytes_[end + 1] != '\n') return nextPiecewise();
  const std::string_view line = bytes_.substr(position_, end - position_);
  position_ = end + 2;
  return withinLimits(line);
}

// A line with CRs in it that do not end it: the pieces between them are put together.
std::optional<std::string_view> LineScanner::nextPiecewise() {
  pieces_.clear();
  while (const auto end = findReturn()) {
    const std::string_view piece = bytes_.substr(position_, *end - position_);
    pieces_.append(piece.substr(0, kMaxLine - pieces_.size()));
    position_ = *end + 1;
    if (bytes_[position_] != '\n') continue;
    ++position_;
    return withinLimits(pieces_);
  }
  return std::nullopt;
}

std::string_view LineScanner::withinLimits(std::string_view line) const {
  line = line.substr(0, kMaxLine);
  return hasNul_ ? line.substr(0, line.find('\0')) : line;
}

}  // namespace scorvane
