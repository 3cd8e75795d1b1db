// What the reader and the writer of contest files share.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "model/contest.h"

namespace scorvane {

/// Longest line a contest file holds, its CR LF included.
inline constexpr std::size_t kMaxContestLine = 499;

inline constexpr std::string_view kLineEnd = "\r\n";

/// Longest line without its CR LF.
inline constexpr std::size_t kLineRoom = kMaxContestLine - kLineEnd.size();

/// A setting with a line of its own: key, TAB, value.
struct SettingLine {
  std::string_view key;
  std::variant<std::string ContestSettings::*, std::int32_t ContestSettings::*,
               bool ContestSettings::*>
      value;
};

inline constexpr std::string_view kTeamSizeKey = "totalNumPerTeam:";

/// In the order of the file. The line of the categories, which are no setting, follows them.
inline constexpr std::array<SettingLine, 11> kSettingLines = {{
    {"contestName:", &ContestSettings::contestName},
    {"divisionName:", &ContestSettings::divisionName},
    {"contestDate:", &ContestSettings::contestDate},
    {"startNum:", &ContestSettings::startNum},
    {"numPerTeam:", &ContestSettings::numPerTeam},
    {"numToScore:", &ContestSettings::numToScore},
    {"reportPercent:", &ContestSettings::reportPercent},
    {"numToReport:", &ContestSettings::numToReport},
    {"numGroups:", &ContestSettings::numGroups},
    {kTeamSizeKey, &ContestSettings::totalNumPerTeam},
    {"numReasonsGroups:", &ContestSettings::numReasonsGroups},
}};
inline constexpr std::string_view kCategoriesKey = "categories:";

/// The classes begin after at most so many lines.
inline constexpr int kMaxSettingsLines = 15;

inline constexpr std::string_view kClassesMarker = "~~~~~Classes~~~~~";
inline constexpr std::string_view kContestantsMarker = "~~~~~Contestants~~~~~";
inline constexpr std::string_view kTeamsMarker = "~~~~~Teams~~~~~";
inline constexpr std::string_view kScoresMarker = "~~~~~Scores~~~~~";
/// The first byte of a file while it is written in place, so that what was not finished is told
/// from a contest.
inline constexpr char kUnfinishedMark = '\0';
/// Two such lines end the file; the reader ignores them.
inline constexpr std::string_view kTrailerLine = "0000-0000-0000-0000";

}  // namespace scorvane
