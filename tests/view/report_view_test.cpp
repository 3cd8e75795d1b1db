#include "view/report_view.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr ViewMetrics kMetrics{8, 16};

std::string numberedLines(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += std::to_string(i) + "\n";
  return text;
}

// 100 lines, 10 of them in view: the last position is 90.
ReportView hundredLines() {
  ReportView view;
  view.refresh(numberedLines(100), kMetrics, {400, 170});
  return view;
}

}  // namespace

TEST(ReportView, RangesComeFromLinesAndClientSize) {
  struct Case {
    std::string text;
    int lines, verticalMaximum, horizontalMaximum;
  };
  // Every line but the first is measured from the line end before it, hence one wider.
  for (const Case& c : {Case{"", 0, -1, 2}, Case{"no line end", 0, -1, 2}, Case{"four\n", 1, 0, 6},
                        Case{"four\nfour\n", 2, 1, 7}, Case{"a\nb\nlonger, but open", 2, 1, 4}}) {
    ReportView view;
    view.refresh(c.text, kMetrics, {405, 175});
    EXPECT_EQ(view.lineCount(), c.lines) << c.text;
    EXPECT_EQ(view.vertical().maximum, c.verticalMaximum) << c.text;
    EXPECT_EQ(view.vertical().page, 10);
    EXPECT_EQ(view.horizontal().maximum, c.horizontalMaximum) << c.text;
    EXPECT_EQ(view.horizontal().page, 50);
    EXPECT_EQ(view.vertical().position, 0);
  }
}

TEST(ReportView, OpensAsWideAsItsWholeText) {
  ReportView view;
  view.open("ab\ncd\n", kMetrics);
  view.resize({8, 16});
  EXPECT_EQ(view.horizontal().maximum, 8);
  view.refresh("ab\ncd\n", kMetrics, {8, 16});
  EXPECT_EQ(view.horizontal().maximum, 5);
}

TEST(ReportView, EveryMoveStopsAtTheEnds) {
  struct Case {
    int from;
    ScrollMove move;
    int thumb, to;
  };
  for (const Case& c : {Case{0, ScrollMove::lineBack, 0, 0}, Case{0, ScrollMove::lineForward, 0, 1},
                        Case{50, ScrollMove::pageForward, 0, 60},
                        Case{50, ScrollMove::pageBack, 0, 40}, Case{5, ScrollMove::pageBack, 0, 0},
                        Case{85, ScrollMove::pageForward, 0, 90}, Case{50, ScrollMove::start, 0, 0},
                        Case{50, ScrollMove::end, 0, 90}, Case{90, ScrollMove::lineForward, 0, 90},
                        Case{3, ScrollMove::track, 70, 70}, Case{3, ScrollMove::track, 99, 90}}) {
    ReportView view = hundredLines();
    view.scrollVertically(ScrollMove::track, c.from);
    EXPECT_EQ(view.scrollVertically(c.move, c.thumb), (c.from - c.to) * 16) << c.from;
    EXPECT_EQ(view.vertical().position, c.to) << c.from;
  }
}

TEST(ReportView, HorizontalMovesShiftByCharacters) {
  ReportView view;
  view.refresh(std::string(100, 'x') + "\n", kMetrics, {400, 160});
  EXPECT_EQ(view.scrollHorizontally(ScrollMove::pageForward), -400);
  EXPECT_EQ(view.scrollHorizontally(ScrollMove::end), -24);  // 102 is the end, 53 the last position
  EXPECT_EQ(view.scrollHorizontally(ScrollMove::lineForward), 0);
  EXPECT_EQ(view.scrollHorizontally(ScrollMove::track, 10), 43 * 8);
}

TEST(ReportView, WheelScrollsFiveLinesANotch) {
  struct Case {
    int delta, to;
  };
  for (const Case& c : {Case{120, 45}, Case{240, 40}, Case{-120, 55}, Case{119, 50}, Case{-119, 50},
                        Case{-239, 55}, Case{1320, 0}, Case{-12000, 90}}) {
    ReportView view = hundredLines();
    view.scrollVertically(ScrollMove::track, 50);
    view.turnWheel(c.delta);
    EXPECT_EQ(view.vertical().position, c.to) << c.delta;
  }
}

TEST(ReportView, ResizingKeepsThePositionWithinTheBar) {
  ReportView view = hundredLines();
  view.scrollVertically(ScrollMove::track, 70);
  view.resize({400, 320});
  EXPECT_EQ(view.vertical().position, 70);
  view.resize({400, 640});
  EXPECT_EQ(view.vertical().position, 60);
}

TEST(ReportView, PaintsOnlyTheLinesInTheArea) {
  ReportView view = hundredLines();
  view.scrollVertically(ScrollMove::track, 20);
  EXPECT_EQ(view.linesAt(0, 170).first, 20);
  EXPECT_EQ(view.linesAt(0, 170).last, 30);
  EXPECT_EQ(view.linesAt(33, 47).first, 22);
  EXPECT_EQ(view.linesAt(33, 47).last, 22);
  view.scrollVertically(ScrollMove::end);
  EXPECT_EQ(view.linesAt(0, 1000).last, 100);
}

TEST(ReportView, GivesLinesOfTheTextAsItIsNow) {
  ReportView view;
  view.refresh("a\n\nccc\nopen end", kMetrics, {80, 160});
  const std::string text = "a\n\nccc\nopen end";
  EXPECT_EQ(view.line(text, 0), "a");
  EXPECT_EQ(view.line(text, 1), "");
  EXPECT_EQ(view.line(text, 2), "ccc");
  EXPECT_EQ(view.line(text, 3), "");
  EXPECT_EQ(view.line(text, -1), "");
  EXPECT_EQ(view.line("shorter\n", 2), "");
  EXPECT_EQ(view.line("shorter\n", 0), "shorter");
  EXPECT_EQ(view.line("longer\nand more\n", 1), "and more");
  EXPECT_EQ(view.line("longer and\nmore\n", 0), "longer and");
}

TEST(ReportView, ShrinksThePictureIntoTheWindow) {
  struct Case {
    ViewSize client, shown;
  };
  for (const Case& c :
       {Case{{740, 500}, {640, 400}}, Case{{2000, 2000}, {640, 400}}, Case{{420, 500}, {320, 200}},
        Case{{740, 300}, {320, 200}}, Case{{90, 500}, {0, 0}}, Case{{0, 0}, {0, 0}}}) {
    const ViewSize shown = pictureSize({640, 400}, c.client);
    EXPECT_EQ(shown.width, c.shown.width) << c.client.width << " x " << c.client.height;
    EXPECT_EQ(shown.height, c.shown.height) << c.client.width << " x " << c.client.height;
  }
  EXPECT_EQ(pictureSize({0, 0}, {740, 500}).width, 0);
}
