// Reports that are handed out page by page.
#pragma once

#include <string>
#include <string_view>

#include "model/placing.h"
#include "text/report_marks.h"

namespace scorvane {

/// Puts blocks of lines on pages of paper: a block goes to the next page when it does not fit on
/// this one.
class HandOut {
 public:
  /// What a page takes after the opening. Printers differ in the height of their default font: this
  /// fits where a page has room for 58 lines, of which the head takes seven and the foot four, and
  /// after a full page a page break would leave an empty one.
  static constexpr std::size_t kLinesOnPage = 46;

  /// Every printed page repeats the opening's four lines at its head.
  explicit HandOut(std::string opening, std::size_t longest = kLongestHandOut)
      : text_(std::move(opening)), longest_(longest) {}

  /// Begins a page with its title lines, which are repeated on the further pages that its blocks
  /// need.
  void beginPage(std::string title);
  /// A block that fits on no page is continued on the next ones under the lines `continued`, and
  /// without these runs on.
  void add(std::string_view block, std::string_view continued = {});
  /// Whether the report has grown beyond all use. It then says so and must not be added to.
  [[nodiscard]] bool isTooLong();
  [[nodiscard]] std::string take() { return std::move(text_); }

 private:
  void turnPage();
  void addOverPages(std::string_view block, std::string_view continued);

  std::string text_;
  std::string title_;
  std::size_t longest_;
  std::size_t usedLines_ = 0;
  bool hasPages_ = false;
};

/// A placing as letter and order, "B 1243"; "Z" alone, and "-" for none.
[[nodiscard]] std::string placingText(PlacingLetter letter);
/// "2-3-4"
[[nodiscard]] std::string cutsText(const Cuts& cuts);

}  // namespace scorvane
