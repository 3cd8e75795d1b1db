#include "results/hand_out.h"

#include <algorithm>
#include <utility>

#include "text/format.h"

namespace scorvane {

namespace {

std::size_t countLines(std::string_view text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

// The first line with what belongs to it: the lines under it that are indented or empty.
std::string_view firstRow(std::string_view block) {
  constexpr std::size_t kMostTogether = 30;
  std::size_t end = 0;
  for (std::size_t lines = 0; lines < kMostTogether && end < block.size(); ++lines) {
    const std::string_view rest = block.substr(end);
    if (lines > 0 && !rest.starts_with("   ") && !rest.starts_with("\n")) break;
    end += std::min(rest.find('\n'), rest.size() - 1) + 1;
  }
  return block.substr(0, end);
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
  std::size_t lines = countLines(block);
  if (!continued.empty() && countLines(title_) + lines > kLinesOnPage) {
    return addOverPages(block, continued);
  }
  // The empty line that parts a block from the next one is not worth a page.
  if (usedLines_ + lines == kLinesOnPage + 1 && block.ends_with("\n\n")) {
    block.remove_suffix(1);
    --lines;
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
    const std::string_view row = firstRow(block);
    const std::size_t lines = countLines(row);
    if (usedLines_ + lines > kLinesOnPage) {
      turnPage();
      text_ += continued;
      usedLines_ += countLines(continued);
    }
    text_ += row;
    usedLines_ += lines;
    block.remove_prefix(row.size());
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
