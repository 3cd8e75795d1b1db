#include "results/hand_out.h"

#include <algorithm>
#include <utility>

#include "text/format.h"

namespace scorvane {

namespace {

std::size_t countLines(std::string_view text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

}  // namespace

void HandOut::beginPage(std::string title) {
  title_ = std::move(title);
  turnPage();
}

void HandOut::turnPage() {
  if (hasPages_) text_.append(kPageBreakLine).append("\n");
  hasPages_ = true;
  text_ += title_;
  usedLines_ = countLines(title_);
}

void HandOut::add(std::string_view block, std::string_view continued) {
  const std::size_t lines = countLines(block);
  if (!continued.empty() && countLines(title_) + lines > kLinesOnPage) {
    return addOverPages(block, continued);
  }
  const bool isFirst = usedLines_ == countLines(title_);
  if (!isFirst && usedLines_ + lines > kLinesOnPage) turnPage();
  text_ += block;
  usedLines_ += lines;
}

void HandOut::addOverPages(std::string_view block, std::string_view continued) {
  constexpr std::size_t kFewestLines = 8;
  if (usedLines_ + kFewestLines > kLinesOnPage) turnPage();
  while (!block.empty()) {
    if (usedLines_ == kLinesOnPage) {
      turnPage();
      text_ += continued;
      usedLines_ += countLines(continued);
    }
    const std::size_t end = std::min(block.find('\n'), block.size() - 1) + 1;
    text_ += block.substr(0, end);
    block.remove_prefix(end);
    ++usedLines_;
  }
}

bool HandOut::isTooLong() {
  return closeIfTooLong(text_, longest_);
}

std::string placingText(PlacingLetter letter) {
  if (letter == kNoLetter) return "-";
  if (!isOrderLetter(letter)) return {letter};
  const auto order = orderOfLetter(letter);
  return formatText("%c %d%d%d%d", letter, order[0], order[1], order[2], order[3]);
}

std::string cutsText(const Cuts& cuts) {
  return formatText("%d-%d-%d", cuts.cut1, cuts.cut2, cuts.cut3);
}

}  // namespace scorvane
