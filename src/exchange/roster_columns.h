// Which columns of a sheet hold teams, coaches and contestants.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "exchange/sheet.h"

namespace scorvane {

/// The column of a name, or the columns of its two parts.
struct NameColumns {
  std::optional<std::size_t> first;  ///< the whole name, or the first one
  std::optional<std::size_t> last;

  [[nodiscard]] bool exist() const { return first || last; }
};

struct RosterColumns {
  std::optional<std::size_t> team;
  NameColumns coach;
  struct Member {
    NameColumns name;
    bool isAlternate = false;
  };
  std::vector<Member> members;           ///< several when a row is a whole team
  std::optional<std::size_t> alternate;  ///< tells whether the contestant is one
  std::optional<std::size_t> width;      ///< how many columns have headings; nothing without any
  std::size_t firstRow = 0;              ///< of the sheet's rows, the first below the headings
  std::size_t kinds = 0;                 ///< how many kinds of columns the headings name
  bool areDoubtful = false;              ///< the headings may be a team and its people
};

/// Finds the columns by their headings, which may have other lines above them. Without headings
/// they are team, contestant, coach: the first columns that hold something.
[[nodiscard]] RosterColumns findColumns(const Sheet& sheet);

}  // namespace scorvane
