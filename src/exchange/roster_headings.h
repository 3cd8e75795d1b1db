// What the words of a heading tell of its column.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace scorvane {

enum class ColumnKind { none, team, coach, contestant, alternate };

struct Heading {
  std::string key;  ///< its words, joined
  ColumnKind kind = ColumnKind::none;
  ColumnKind laterKind = ColumnKind::none;  ///< when another column holds the teams
  bool isFirstName = false;
  bool isLastName = false;
  bool asksAlternate = false;
  std::int32_t number = 0;  ///< such as 2 of "Member 2", "Second member"
  bool isClear = false;     ///< reads like a heading and like nothing else
};

[[nodiscard]] Heading readHeading(std::string_view text);

}  // namespace scorvane
