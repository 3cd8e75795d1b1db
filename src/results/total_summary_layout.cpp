#include "results/total_summary_layout.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "text/format.h"

namespace scorvane {

namespace {

constexpr std::string_view kBar = " | ";
constexpr std::size_t kLongestTitle = 16;
constexpr std::size_t kLeastNumberWidth = 5;
constexpr std::size_t kNameWidth = 20;
// Behind it there is room for four columns of the widest numbers.
constexpr std::size_t kWidestPrefix = 30;

void appendRight(std::string& out, std::string_view text, std::size_t width) {
  if (text.size() < width) out.append(width - text.size(), ' ');
  out += text;
}

std::size_t widestOf(std::int32_t least, std::int32_t most) {
  return std::max(std::to_string(least).size(), std::to_string(most).size());
}

// Each column's widest number, or its heading if that is wider.
std::vector<std::size_t> columnWidthsOf(const SummaryTable& table) {
  const std::size_t count = table.columns().count();
  std::vector<std::pair<std::int32_t, std::int32_t>> extremes(count);
  const auto measure = [&](std::size_t firstCell) {
    const auto cells = table.cells(firstCell);
    for (std::size_t column = 0; column < count; ++column) {
      auto& [least, most] = extremes[column];
      least = std::min(least, cells[column]);
      most = std::max(most, cells[column]);
    }
  };
  for (const SummaryRow& row : table.rows()) measure(row.firstCell);
  for (const SummaryTeam& team : table.teams()) {
    if (team.coach != nullptr) measure(team.firstTotal);
  }
  std::vector<std::size_t> widths;
  widths.reserve(count);
  for (const SummaryBlock& block : table.columns().blocks()) {
    for (const char* heading : block.headings) {
      const auto& [least, most] = extremes[widths.size()];
      widths.push_back(std::max(std::strlen(heading), widestOf(least, most)));
    }
  }
  return widths;
}

std::size_t numberWidthOf(const SummaryTable& table) {
  std::size_t width = kLeastNumberWidth;
  for (const SummaryRow& row : table.rows()) {
    width = std::max(width, std::to_string(row.number).size());
  }
  return width;
}

bool isClass(const SummaryBlock& block) {
  return block.kind == SummaryBlock::Kind::judgingClass;
}

}  // namespace

SummaryLayout::SummaryLayout(const SummaryTable& table) {
  const std::size_t numberWidth = numberWidthOf(table);
  numberWidth_ = static_cast<int>(numberWidth);
  prefixWidth_ = std::min(numberWidth + 1 + kNameWidth, kWidestPrefix);
  const std::vector<std::size_t> widths = columnWidthsOf(table);
  std::vector<PlacedBlock> blocks;
  for (const SummaryBlock& content : table.columns().blocks()) {
    PlacedBlock block;
    block.content = &content;
    block.width = content.headings.size() - 1;  // blanks between the columns
    for (std::size_t column = 0; column < content.headings.size(); ++column) {
      block.columnWidths.push_back(widths[content.firstColumn + column]);
      block.width += block.columnWidths.back();
    }
    const std::size_t titleWidth = std::min(content.title.size(), kLongestTitle);
    block.padding = titleWidth > block.width ? titleWidth - block.width : 0;
    block.width += block.padding;
    blocks.push_back(std::move(block));
  }
  makeBands(std::move(blocks));
  for (Band& band : bands_) band.heading = makeHeading(band);
}

void SummaryLayout::makeBands(std::vector<PlacedBlock> blocks) {
  const auto totals = std::find_if(blocks.begin(), blocks.end(),
                                   [](const PlacedBlock& b) { return !isClass(*b.content); });
  // The first block of each band.
  const auto startsOf = [&](auto first, auto last) {
    std::vector<std::size_t> starts;
    std::size_t lineWidth = kWidestSummaryLine;
    for (; first != last; ++first) {
      lineWidth += kBar.size() + first->width;
      if (lineWidth <= kWidestSummaryLine) continue;
      starts.push_back(static_cast<std::size_t>(first - blocks.begin()));
      lineWidth = prefixWidth_ + kBar.size() + first->width;
    }
    return starts;
  };
  std::vector<std::size_t> starts = startsOf(blocks.begin(), totals);
  const std::vector<std::size_t> ofTotals = startsOf(totals, blocks.end());
  starts.insert(starts.end(), ofTotals.begin(), ofTotals.end());
  const std::vector<std::size_t> closest = startsOf(blocks.begin(), blocks.end());
  // The totals begin a band of their own unless that takes one band more.
  if (closest.size() < starts.size()) starts = closest;
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    if (std::binary_search(starts.begin(), starts.end(), i)) bands_.emplace_back();
    bands_.back().blocks.push_back(std::move(blocks[i]));
  }
}

bool SummaryLayout::hasClasses(std::size_t band) const {
  return isClass(*bands_[band].blocks.front().content);  // classes come before all totals
}

std::string SummaryLayout::makeHeading(const Band& band) const {
  std::string titles;
  std::string headings(prefixWidth_, ' ');
  appendRight(titles, isClass(*band.blocks.front().content) ? "Class" : "", prefixWidth_);
  for (const PlacedBlock& block : band.blocks) {
    const std::string_view title = std::string_view(block.content->title).substr(0, kLongestTitle);
    titles += kBar;
    // A class number is right over the placing scores.
    const std::size_t left =
        isClass(*block.content) ? block.padding + block.columnWidths.front() : title.size();
    appendRight(titles, title, left);
    titles.append(block.width - left, ' ');
    headings.append(kBar).append(block.padding, ' ');
    for (std::size_t column = 0; column < block.columnWidths.size(); ++column) {
      if (column > 0) headings += ' ';
      appendRight(headings, block.content->headings[column], block.columnWidths[column]);
    }
  }
  const std::string rule(headings.size(), '-');
  titles.erase(titles.find_last_not_of(' ') + 1);
  return titles + "\n" + headings + "\n" + rule + "\n";
}

void SummaryLayout::appendMember(std::string& out, const SummaryRow& row) const {
  const int nameWidth = static_cast<int>(prefixWidth_) - numberWidth_ - 1;
  if (row.isAlternate) {
    appendFormat(out, "%*d %-*.*s alt", numberWidth_, row.number, nameWidth - 4, nameWidth - 4,
                 row.name->c_str());
  } else {
    appendFormat(out, "%*d %-*.*s", numberWidth_, row.number, nameWidth, nameWidth,
                 row.name->c_str());
  }
}

void SummaryLayout::appendLabel(std::string& out, const char* label) const {
  out.append(prefixWidth_ - kNameWidth, ' ');
  appendFormat(out, "%-*s", static_cast<int>(kNameWidth), label);
}

void SummaryLayout::appendCells(std::string& out, std::size_t band,
                                std::span<const std::int32_t> cells, Totals totals) const {
  for (const PlacedBlock& block : bands_[band].blocks) {
    out += kBar;
    if (totals == Totals::blank && !isClass(*block.content)) {
      out.append(block.width, ' ');
      continue;
    }
    out.append(block.padding, ' ');
    for (std::size_t column = 0; column < block.columnWidths.size(); ++column) {
      if (column > 0) out += ' ';
      appendRight(out, std::to_string(cells[block.content->firstColumn + column]),
                  block.columnWidths[column]);
    }
  }
  out += '\n';
}

}  // namespace scorvane
