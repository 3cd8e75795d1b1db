// What the reader and the writer of contest files share.
#pragma once

#include <cstddef>
#include <string_view>

namespace scorvane {

/// Longest line a contest file holds, its CR LF included.
inline constexpr std::size_t kMaxContestLine = 499;

inline constexpr std::string_view kLineEnd = "\r\n";

inline constexpr std::string_view kCategoriesKey = "categories:";
inline constexpr std::string_view kClassesMarker = "~~~~~Classes~~~~~";
inline constexpr std::string_view kContestantsMarker = "~~~~~Contestants~~~~~";
inline constexpr std::string_view kTeamsMarker = "~~~~~Teams~~~~~";
inline constexpr std::string_view kScoresMarker = "~~~~~Scores~~~~~";
/// Two such lines end the file; readers pass over them.
inline constexpr std::string_view kTrailerLine = "0000-0000-0000-0000";

}  // namespace scorvane
