#include "storage/contest_salvage.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "storage/contest_format.h"
#include "storage/contest_reader.h"
#include "storage/line_scanner.h"

namespace scorvane {

namespace {

std::vector<std::string_view> fieldsOf(std::string_view line) {
  std::vector<std::string_view> fields;
  FieldScanner scanner(line);
  while (const auto field = scanner.next()) fields.push_back(*field);
  return fields;
}

bool isNumber(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

bool isYesOrNo(std::string_view text) {
  return text == "Yes" || text == "No";
}

bool isScore(const std::vector<std::string_view>& fields) {
  return fields.size() == 6 && isNumber(fields[0]) && isNumber(fields[1]) &&
         fields[2].size() == 1 && !isNumber(fields[2]) && isNumber(fields[3]) &&
         isNumber(fields[4]) && isNumber(fields[5]);
}

enum Section : std::size_t { kSettings, kClasses, kContestants, kTeams, kScores, kSections };

constexpr std::array<std::string_view, kSections> kMarkers = {
    "", kClassesMarker, kContestantsMarker, kTeamsMarker, kScoresMarker};

// Where a section's marker is damaged its records come up in the section before.
bool belongs(Section section, std::string_view line) {
  const std::vector<std::string_view> fields = fieldsOf(line);
  switch (section) {
    case kSettings:
      return fields.size() > 1 && fields[0].ends_with(':');
    case kClasses:
      return fields.size() > 3 && isYesOrNo(fields[1]);
    case kContestants:
      return fields.size() > 1 && isNumber(fields[0]);
    case kTeams:
      return fields.size() > 1 && !isScore(fields);
    default:
      return isScore(fields);
  }
}

}  // namespace

std::optional<Contest> salvageContest(std::string_view bytes) {
  constexpr std::string_view kNobodysScore = "-1\t-1\t \t0\t0\t0";
  std::array<std::vector<std::string_view>, kSections> records;
  Section section = kSettings;
  for (std::size_t end = 0; (end = bytes.find(kLineEnd)) != std::string_view::npos;
       bytes.remove_prefix(end + kLineEnd.size())) {
    const std::string_view line = bytes.substr(0, end);
    const auto marker = std::find(kMarkers.begin() + 1, kMarkers.end(), line);
    if (marker != kMarkers.end()) {
      section = static_cast<Section>(marker - kMarkers.begin());
    } else if (line.size() <= kMaxContestLine && line.find('\0') == std::string_view::npos &&
               belongs(section, line)) {
      records[section].push_back(line);
    }
  }
  records[kScores].resize(records[kClasses].size() * records[kContestants].size(), kNobodysScore);
  std::string whole;
  for (std::size_t i = 0; i < kSections; ++i) {
    if (i != kSettings) {
      whole.append(kMarkers[i]).append(kLineEnd);
      whole.append(std::to_string(records[i].size())).append(kLineEnd);
    }
    for (const std::string_view record : records[i]) whole.append(record).append(kLineEnd);
  }
  if (records[kSettings].empty()) return std::nullopt;
  return readRemains(whole);
}

}  // namespace scorvane
