#include "storage/settings_reader.h"

#include <array>
#include <string>

#include "model/new_contest.h"
#include "storage/contest_format.h"
#include "text/number.h"

namespace scorvane {

namespace {

struct TextKey {
  std::string_view key;
  std::string ContestSettings::*field;
};

constexpr std::array<TextKey, 3> kTextKeys = {{
    {"contestName:", &ContestSettings::contestName},
    {"divisionName:", &ContestSettings::divisionName},
    {"contestDate:", &ContestSettings::contestDate},
}};

struct NumberKey {
  std::string_view key;
  std::int32_t ContestSettings::*field;
  std::int32_t ifMissing;  ///< when the line has no value
};

// For a missing value, numToScore and numToReport deliberately take what a new contest has the
// other way round (3 and 20).
constexpr std::array<NumberKey, 6> kNumberKeys = {{
    {"startNum:", &ContestSettings::startNum, 101},
    {"numPerTeam:", &ContestSettings::numPerTeam, 4},
    {"numToScore:", &ContestSettings::numToScore, 20},
    {"numToReport:", &ContestSettings::numToReport, 3},
    {"numGroups:", &ContestSettings::numGroups, 5},
    {"numReasonsGroups:", &ContestSettings::numReasonsGroups, 1},
}};

void setValue(ContestSettings& settings, std::string_view key, std::string_view value) {
  for (const TextKey& text : kTextKeys) {
    if (key != text.key) continue;
    settings.*text.field = value.empty() ? newContest().settings.*text.field : std::string(value);
    return;
  }
  for (const NumberKey& number : kNumberKeys) {
    if (key != number.key) continue;
    settings.*number.field = value.empty() ? number.ifMissing : leadingNumber(value);
    return;
  }
  if (key == "reportPercent:") {
    settings.reportPercent = leadingNumber(value) == 1;
  } else if (key == "totalNumPerTeam:") {
    settings.totalNumPerTeam = value.empty() ? settings.numPerTeam : leadingNumber(value);
  }
}

std::vector<std::string> readCategories(FieldScanner& fields) {
  std::vector<std::string> names;
  while (const auto name = fields.next()) names.emplace_back(*name);
  if (names.empty() || (names.size() == 1 && names[0].empty())) names = {kNoCategory};
  return names;
}

}  // namespace

bool readSettings(LineScanner& lines, Contest& contest) {
  constexpr int kMaxSettingsLines = 15;
  contest.categories = {kNoCategory};
  for (int counter = 1; const auto line = lines.next(); ++counter) {
    FieldScanner fields(*line);
    const std::string_view key = fields.nextOrEmpty();
    if (key == kClassesMarker) return true;
    if (counter > kMaxSettingsLines) return false;
    if (key == kCategoriesKey) {
      contest.categories = readCategories(fields);
    } else {
      // Any other line puts the placeholder back, so settings without categories end with it.
      contest.categories = {kNoCategory};
      setValue(contest.settings, key, fields.nextOrEmpty());
    }
  }
  return false;
}

}  // namespace scorvane
