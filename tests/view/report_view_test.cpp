#include "view/report_view.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "text/report_marks.h"

namespace scorvane {

namespace {

using Four = std::array<int, 4>;

constexpr ViewMetrics kMetrics{8, 16};

// 100 lines, 10 of them in view: the last position is 90.
ReportView hundredLinesAt(int position) {
  std::string text;
  for (int i = 0; i < 100; ++i) text += std::to_string(i) + "\n";
  ReportView view;
  view.refresh(text, kMetrics, {400, 170});
  view.scrollVertically(ScrollMove::track, position);
  return view;
}

TEST(ReportView, RangesComeFromLinesAndClientSize) {
  struct Case {
    std::string text;
    int lines, width;
  };
  ReportView view = hundredLinesAt(5);
  view.scrollHorizontally(ScrollMove::track, 1);
  // Every line but the first is measured from the line end before it, hence one wider.
  for (const Case& c : {Case{"", 0, 2}, Case{"no line end", 0, 2}, Case{"four\n", 1, 6},
                        Case{"four\nfour\n", 2, 7}, Case{"a\nb\nlonger, but open", 2, 4}}) {
    view.refresh(c.text, kMetrics, {405, 175});
    EXPECT_EQ(view.lineCount(), c.lines) << c.text;
    const auto& [vertical, horizontal] = std::pair(view.vertical(), view.horizontal());
    EXPECT_EQ((Four{vertical.maximum, vertical.page, vertical.position}),
              (Four{c.lines - 1, 10, 0}));
    EXPECT_EQ((Four{horizontal.maximum, horizontal.page, horizontal.position}),
              (Four{c.width, 50, 0}));
  }
  view.open("ab\ncd\n", kMetrics);
  view.resize({8, 16});
  EXPECT_EQ(view.horizontal().maximum, 8) << "the whole text in one line";
}

TEST(ReportView, EveryMoveStopsAtTheEnds) {
  struct Case {
    int from;
    ScrollMove move;
    int thumb, to;
  };
  for (const Case& c :
       {Case{0, ScrollMove::lineBack, 0, 0}, Case{50, ScrollMove::lineBack, 0, 49},
        Case{0, ScrollMove::lineForward, 0, 1}, Case{50, ScrollMove::pageForward, 0, 60},
        Case{50, ScrollMove::pageBack, 0, 40}, Case{5, ScrollMove::pageBack, 0, 0},
        Case{85, ScrollMove::pageForward, 0, 90}, Case{50, ScrollMove::start, 0, 0},
        Case{50, ScrollMove::end, 0, 90}, Case{90, ScrollMove::lineForward, 0, 90},
        Case{3, ScrollMove::track, 70, 70}, Case{3, ScrollMove::track, 99, 90}}) {
    ReportView view = hundredLinesAt(c.from);
    EXPECT_EQ(view.scrollVertically(c.move, c.thumb), (c.from - c.to) * 16) << c.from;
    EXPECT_EQ(view.vertical().position, c.to) << c.from;
  }
  ReportView wide;
  wide.refresh(std::string(100, 'x') + "\n", kMetrics, {400, 160});
  EXPECT_EQ(wide.scrollHorizontally(ScrollMove::pageForward), -400);
  EXPECT_EQ(wide.scrollHorizontally(ScrollMove::end), -24);  // 102 is the end, 53 the last position
  EXPECT_EQ(wide.scrollHorizontally(ScrollMove::lineForward), 0);
  EXPECT_EQ(wide.scrollHorizontally(ScrollMove::track, 10), 43 * 8);
  wide.refresh(std::string(200, 'x') + "\n", kMetrics, {400, 160});
  EXPECT_EQ(wide.horizontal().position, 0) << "a new report shows its beginning";
}

TEST(ReportView, WheelScrollsFiveLinesANotch) {
  using Turn = std::pair<int, int>;
  for (const auto& [delta, to] :
       {Turn{120, 45}, Turn{240, 40}, Turn{-120, 55}, Turn{119, 50}, Turn{-119, 50}, Turn{-239, 55},
        Turn{1320, 0}, Turn{-12000, 90}}) {
    ReportView view = hundredLinesAt(50);
    view.turnWheel(delta);
    EXPECT_EQ(view.vertical().position, to) << delta;
  }
}

TEST(ReportView, ResizingKeepsThePositionWithinTheBar) {
  ReportView view = hundredLinesAt(70);
  view.resize({400, 320});
  EXPECT_EQ(view.vertical().position, 70);
  view.resize({400, 640});
  EXPECT_EQ(view.vertical().position, 60);
}

TEST(ReportView, GivesTheLinesOfAnAreaAndOfTheTextAsItIsNow) {
  for (const auto& [top, bottom, first, last] : {Four{0, 170, 20, 30}, Four{33, 47, 22, 22}}) {
    EXPECT_EQ(hundredLinesAt(20).linesAt(top, bottom).first, first);
    EXPECT_EQ(hundredLinesAt(20).linesAt(top, bottom).last, last);
  }
  EXPECT_EQ(hundredLinesAt(0).linesAt(0, 170).first, 0);
  EXPECT_EQ(hundredLinesAt(90).linesAt(0, 1000).last, 100);
  const std::string text = "a\n\nccc\nopen end";
  ReportView view;
  view.refresh(text, kMetrics, {80, 160});
  struct Case {
    std::string now;
    int index;
    std::string line;
  };
  for (const Case& c :
       {Case{text, 0, "a"}, Case{text, 1, ""}, Case{text, 2, "ccc"}, Case{text, 3, ""},
        Case{text, -1, ""}, Case{"shorter\n", 2, ""}, Case{"shorter\n", 0, "shorter"},
        Case{"longer\nand more\n", 1, "and more"}, Case{"longer and\nmore\n", 0, "longer and"}}) {
    EXPECT_EQ(view.line(c.now, c.index), c.line) << c.now << c.index;
  }
}

TEST(ReportView, ShrinksThePictureIntoTheWindow) {
  for (const auto& [width, height, shownWidth, shownHeight] :
       {Four{740, 500, 640, 400}, Four{2000, 2000, 640, 400}, Four{420, 500, 320, 200},
        Four{740, 300, 320, 200}, Four{90, 500, 0, 0}, Four{0, 0, 0, 0}}) {
    const ViewSize shown = pictureSize({640, 400}, {width, height});
    EXPECT_EQ(shown.width, shownWidth) << width << " x " << height;
    EXPECT_EQ(shown.height, shownHeight) << width << " x " << height;
  }
  EXPECT_EQ(pictureSize({0, 0}, {740, 500}).width, 0);
}

}  // namespace

}  // namespace scorvane
