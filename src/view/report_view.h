// What the report view shows: lines, scroll bars and their moves, in plain numbers. The window only
// paints what this returns.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace scorvane {

/// Pixel measures of the fixed-pitch font; both at least 1.
struct ViewMetrics {
  int charWidth = 1;
  int lineHeight = 1;  ///< character height + external leading
};

/// Size of the client area in pixels.
struct ViewSize {
  int width = 0;
  int height = 0;
};

/// Position of the start-up picture's top-left corner in the client area, in pixels both ways.
inline constexpr int kPicturePosition = 50;

/// The size to draw the start-up picture in: its own, or in proportion smaller where the client
/// area would cut it; it then keeps kPicturePosition to the right and below as well.
[[nodiscard]] ViewSize pictureSize(const ViewSize& own, const ViewSize& client);

/// The size of the report's font in points as the program starts.
inline constexpr int kReportPoints = 10;
/// The size that lies so many steps from `points`, larger above 0; from 4 to 40 points.
[[nodiscard]] int zoomedPoints(int points, int steps);

/// One scroll bar: positions from 0 to `maximum`, of which `page` are in view at once.
struct ScrollBar {
  int maximum = 0;
  int page = 0;
  int position = 0;
  /// The nearest position that the bar can take: its last page ends at `maximum`.
  [[nodiscard]] int clamped(int wanted) const;
  bool operator==(const ScrollBar&) const = default;
};

/// What the operator does to a scroll bar; `track` moves to the position of the dragged thumb.
enum class ScrollMove { lineBack, lineForward, pageBack, pageForward, start, end, track };

class ReportView {
 public:
  /// As the window is created: nothing is scrolled, and the horizontal bar is as wide as if the
  /// whole text were one line.
  void open(const std::string& text, const ViewMetrics& metrics);
  /// Takes up a changed text, from its top-left corner.
  void refresh(const std::string& text, const ViewMetrics& metrics, const ViewSize& size);
  /// Takes up a changed client size; positions stay, as far as the bars allow.
  void resize(const ViewSize& size);

  [[nodiscard]] const ScrollBar& vertical() const { return vertical_; }
  [[nodiscard]] const ScrollBar& horizontal() const { return horizontal_; }
  [[nodiscard]] const ViewMetrics& metrics() const { return metrics_; }
  /// Number of line ends in the text.
  [[nodiscard]] int lineCount() const { return static_cast<int>(lineEnds_.size()); }

  /// Each moves a bar and returns the pixels by which the client area shifts (down or right when
  /// above 0); 0 when the bar is at its end already.
  int scrollVertically(ScrollMove move, int thumb = 0);
  int scrollHorizontally(ScrollMove move, int thumb = 0);
  /// `delta` in the wheel's units, 120 a notch, above 0 away from the operator.
  int turnWheel(int delta);

  /// Lines to paint when the pixel rows from `top` to `bottom` of the client area are to be
  /// repainted. `last` can be lineCount(), which is no line.
  struct Lines {
    int first = 0;
    int last = 0;
  };
  [[nodiscard]] Lines linesAt(int top, int bottom) const;

  /// Line `index` of the text without its line end; "" when there is none. What follows the last
  /// line end is no line. Costs the same for the first line and the last; a text that changed
  /// since the last refresh is counted anew.
  [[nodiscard]] std::string_view line(const std::string& text, int index);

 private:
  void indexLines(const std::string& text);
  /// From the first byte of a line up to its line end.
  struct Extent {
    std::size_t begin = 0;
    std::size_t end = 0;
  };
  [[nodiscard]] bool hasLine(int index) const { return index >= 0 && index < lineCount(); }
  [[nodiscard]] Extent extentOf(int index) const;
  [[nodiscard]] bool isCounted(const std::string& text, int index) const;
  void setRanges();
  int moveVerticallyTo(int wanted);

  ViewMetrics metrics_;
  ViewSize size_;
  std::vector<std::size_t> lineEnds_;
  std::size_t textSize_ = 0;
  std::size_t longestLine_ = 0;
  ScrollBar vertical_;
  ScrollBar horizontal_;
};

}  // namespace scorvane
