#include "view/report_view.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace scorvane {

namespace {

constexpr int kLinesPerNotch = 5;
constexpr int kWheelNotch = 120;

int toInt(std::size_t value) {
  constexpr std::size_t largest = std::numeric_limits<int>::max() / 2;
  return static_cast<int>(std::min(value, largest));
}

int movedPosition(const ScrollBar& bar, ScrollMove move, int thumb) {
  switch (move) {
    case ScrollMove::lineBack:
      return bar.clamped(bar.position - 1);
    case ScrollMove::lineForward:
      return bar.clamped(bar.position + 1);
    case ScrollMove::pageBack:
      return bar.clamped(bar.position - bar.page);
    case ScrollMove::pageForward:
      return bar.clamped(bar.position + bar.page);
    case ScrollMove::start:
      return bar.clamped(0);
    case ScrollMove::end:
      return bar.clamped(bar.maximum);
    case ScrollMove::track:
      break;
  }
  return bar.clamped(thumb);
}

}  // namespace

ViewSize pictureSize(const ViewSize& own, const ViewSize& client) {
  if (own.width <= 0 || own.height <= 0) return {};
  const std::int64_t room = std::max(0, client.width - 2 * kPicturePosition);
  const std::int64_t rows = std::max(0, client.height - 2 * kPicturePosition);
  const std::int64_t width =
      std::min({std::int64_t{own.width}, room, rows * own.width / own.height});
  return {static_cast<int>(width), static_cast<int>(width * own.height / own.width)};
}

int zoomedPoints(int points, int steps) {
  constexpr int kSmallest = 4;
  constexpr int kLargest = 40;
  return std::clamp(points + steps, kSmallest, kLargest);
}

int ScrollBar::clamped(int wanted) const {
  const int last = std::max(0, maximum - std::max(page - 1, 0));
  return std::clamp(wanted, 0, last);
}

void ReportView::open(const std::string& text, const ViewMetrics& metrics) {
  metrics_ = metrics;
  indexLines(text);
  longestLine_ = text.size();
  setRanges();
}

void ReportView::refresh(const std::string& text, const ViewMetrics& metrics,
                         const ViewSize& size) {
  metrics_ = metrics;
  size_ = size;
  indexLines(text);
  vertical_.position = 0;
  horizontal_.position = 0;
  setRanges();
}

void ReportView::resize(const ViewSize& size) {
  size_ = size;
  setRanges();
}

// The longest line is the longest distance between two line ends: every line but the first
// counts the line end before it.
void ReportView::indexLines(const std::string& text) {
  lineEnds_.clear();
  textSize_ = text.size();
  longestLine_ = 0;
  std::size_t previous = 0;
  for (std::size_t end = text.find('\n'); end != std::string::npos;
       end = text.find('\n', end + 1)) {
    longestLine_ = std::max(longestLine_, end - previous);
    previous = end;
    lineEnds_.push_back(end);
  }
}

void ReportView::setRanges() {
  vertical_.maximum = lineCount() - 1;
  vertical_.page = size_.height / metrics_.lineHeight;
  vertical_.position = vertical_.clamped(vertical_.position);
  horizontal_.maximum = toInt(longestLine_) + 2;
  horizontal_.page = size_.width / metrics_.charWidth;
  horizontal_.position = horizontal_.clamped(horizontal_.position);
}

int ReportView::moveVerticallyTo(int wanted) {
  const int old = vertical_.position;
  vertical_.position = vertical_.clamped(wanted);
  return (old - vertical_.position) * metrics_.lineHeight;
}

int ReportView::scrollVertically(ScrollMove move, int thumb) {
  return moveVerticallyTo(movedPosition(vertical_, move, thumb));
}

int ReportView::scrollHorizontally(ScrollMove move, int thumb) {
  const int old = horizontal_.position;
  horizontal_.position = movedPosition(horizontal_, move, thumb);
  return (old - horizontal_.position) * metrics_.charWidth;
}

int ReportView::turnWheel(int delta) {
  return moveVerticallyTo(vertical_.position - kLinesPerNotch * (delta / kWheelNotch));
}

ReportView::Lines ReportView::linesAt(int top, int bottom) const {
  return {std::max(0, vertical_.position + top / metrics_.lineHeight),
          std::min(lineCount(), vertical_.position + bottom / metrics_.lineHeight)};
}

ReportView::Extent ReportView::extentOf(int index) const {
  const auto at = static_cast<std::size_t>(index);
  return {at == 0 ? 0 : lineEnds_[at - 1] + 1, lineEnds_[at]};
}

// Whether the text is the one that was counted, so far as the ends of the line can tell.
bool ReportView::isCounted(const std::string& text, int index) const {
  if (text.size() != textSize_ || !hasLine(index)) return text.size() == textSize_;
  const auto [begin, end] = extentOf(index);
  return text[end] == '\n' && (begin == 0 || text[begin - 1] == '\n');
}

std::string_view ReportView::line(const std::string& text, int index) {
  if (!isCounted(text, index)) indexLines(text);
  if (!hasLine(index)) return {};
  const auto [begin, end] = extentOf(index);
  return std::string_view(text).substr(begin, end - begin);
}

}  // namespace scorvane
