// Where the columns of the Total Summary Report are.
//
// A line begins with number and name of a contestant, and each block of columns follows behind a
// bar. A column is as wide as its heading or its widest number, a block as wide as its columns, or
// a little wider to show its title. Blocks that do not fit into one line go to the next band; each
// band begins with the names again.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "results/total_summary_table.h"

namespace scorvane {

inline constexpr std::size_t kWidestSummaryLine = 80;

/// Refers to the table it was made of.
class SummaryLayout {
 public:
  explicit SummaryLayout(const SummaryTable& table);

  [[nodiscard]] std::size_t bandCount() const { return bands_.size(); }
  /// Whether a band shows classes, not only totals.
  [[nodiscard]] bool hasClasses(std::size_t band) const;
  /// The two heading lines of a band and the rule below them.
  [[nodiscard]] const std::string& heading(std::size_t band) const { return bands_[band].heading; }
  /// Number and name, without a line end.
  void appendMember(std::string& out, const SummaryRow& row) const;
  /// A label in place of number and name.
  void appendLabel(std::string& out, const char* label) const;
  /// The cells of a band and the line end. `cells` has one number per column of the table; totals
  /// can be left blank.
  enum class Totals { shown, blank };
  void appendCells(std::string& out, std::size_t band, std::span<const std::int32_t> cells,
                   Totals totals = Totals::shown) const;

 private:
  struct PlacedBlock {
    const SummaryBlock* content = nullptr;
    std::vector<std::size_t> columnWidths;
    std::size_t padding = 0;  ///< blanks before the first column
    std::size_t width = 0;    ///< of padding and columns
  };
  struct Band {
    std::vector<PlacedBlock> blocks;
    std::string heading;
  };

  void makeBands(std::vector<PlacedBlock> blocks);
  [[nodiscard]] std::string makeHeading(const Band& band) const;

  int numberWidth_ = 0;
  std::size_t prefixWidth_ = 0;
  std::vector<Band> bands_;
};

}  // namespace scorvane
