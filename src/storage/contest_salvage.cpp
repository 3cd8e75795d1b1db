#include "storage/contest_salvage.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "storage/contest_format.h"
#include "storage/contest_reader.h"
#include "storage/line_scanner.h"
#include "text/format.h"
#include "text/number.h"

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

bool isSetting(std::string_view line) {
  const auto fields = fieldsOf(line);
  return fields.size() > 1 && fields[0].ends_with(':');
}

bool isClass(std::string_view line) {
  const auto fields = fieldsOf(line);
  return fields.size() == 6 && isYesOrNo(fields[1]) && isYesOrNo(fields[2]);
}

bool isContestant(std::string_view line) {
  const auto fields = fieldsOf(line);
  return fields.size() > 1 && isNumber(fields[0]);
}

bool isScore(std::string_view line) {
  const auto fields = fieldsOf(line);
  return fields.size() == 6 && isNumber(fields[0]) && isNumber(fields[1]) &&
         fields[2].size() == 1 && !isNumber(fields[2]) && isNumber(fields[3]) &&
         isNumber(fields[4]) && isNumber(fields[5]);
}

bool isTeam(std::string_view line) {
  return fieldsOf(line).size() > 1 && !isScore(line);
}

enum SectionKind : std::size_t { kSettings, kClasses, kContestants, kTeams, kScores, kSections };

constexpr std::array<std::string_view, kSections> kMarkers = {
    "", kClassesMarker, kContestantsMarker, kTeamsMarker, kScoresMarker};

struct Section {
  bool isThere = false;
  bool isEnded = false;                 ///< by the marker that follows it
  std::optional<std::size_t> promised;  ///< how many lines
  std::vector<std::string_view> lines;  ///< unreadable ones are empty
};
using Sections = std::array<Section, kSections>;

std::optional<std::size_t> takeCount(std::vector<std::string_view>& lines) {
  if (lines.empty()) return std::nullopt;
  const std::string_view first = lines.front();
  lines.erase(lines.begin());
  if (!isNumber(first)) return std::nullopt;
  return static_cast<std::size_t>(std::max(leadingNumber(first), 0));
}

// A damaged marker is known by the count that follows as many lines as were promised.
void splitAtDamagedMarker(Sections& sections, std::size_t kind) {
  Section& section = sections[kind];
  Section& next = sections[kind + 1];
  if (section.isEnded || next.isThere || !section.promised) return;
  const std::size_t marker = *section.promised;
  if (section.lines.size() < marker + 2 || !isNumber(section.lines[marker + 1])) return;
  next.lines.assign(section.lines.begin() + static_cast<std::ptrdiff_t>(marker) + 1,
                    section.lines.end());
  next.isThere = true;
  next.isEnded = kind + 2 < kSections && sections[kind + 2].isThere;
  section.lines.resize(marker);
  section.isEnded = true;
}

Sections sectionsOf(std::string_view bytes) {
  Sections sections;
  std::size_t current = kSettings;
  for (std::size_t end = 0; (end = bytes.find(kLineEnd)) != std::string_view::npos;
       bytes.remove_prefix(end + kLineEnd.size())) {
    std::string_view line = bytes.substr(0, end);
    const auto marker = std::find(kMarkers.begin() + 1, kMarkers.end(), line);
    if (marker != kMarkers.end()) {
      const auto found = static_cast<std::size_t>(marker - kMarkers.begin());
      sections[current].isEnded = found == current + 1;
      sections[found].isThere = true;
      current = found;
    } else if (line != kTrailerLine) {
      if (line.size() > kMaxContestLine || line.find('\0') != std::string_view::npos) line = {};
      sections[current].lines.push_back(line);
    }
  }
  for (std::size_t i = kClasses; i < kSections; ++i) {
    sections[i].promised = takeCount(sections[i].lines);
    if (i != kScores) splitAtDamagedMarker(sections, i);
  }
  return sections;
}

std::int32_t classOf(std::string_view score) {
  return leadingNumber(fieldsOf(score)[1]);
}

/// How many classes the scores tell of, each class once after the one before it.
std::size_t classesIn(const std::vector<std::string_view>& scores) {
  std::size_t count = 0;
  std::int32_t before = -1;
  for (const std::string_view line : scores) {
    const std::int32_t k = isScore(line) ? classOf(line) : -1;
    if (k >= 0 && (k == 0 || k - 1 == before)) {
      count = std::max(count, static_cast<std::size_t>(k) + 1);
    }
    before = k;
  }
  return count;
}

// Scores name their class by its number: no class may take the number of one that is damaged.
std::vector<std::string> classesOf(const Section& section, const Section& scores) {
  const std::size_t count = section.lines.size();
  const bool isNumbered = section.promised && (section.isEnded ? count == *section.promised
                                                               : count <= *section.promised);
  std::vector<std::string> classes(isNumbered ? count : classesIn(scores.lines));
  for (std::size_t k = 0; k < classes.size(); ++k) {
    if (isNumbered && isClass(section.lines[k])) {
      classes[k] = section.lines[k];
    } else {
      classes[k] =
          "Damaged class " + std::to_string(k + 1) + "\tYes\tYes\t" + kNoLetter + "\t0,0,0\t0";
    }
  }
  return classes;
}

/// The contestants' lines, each at its position; empty where it is damaged. Of a number that comes
/// twice only the one counts whose scores are at its position.
std::vector<std::string_view> contestantsOf(const Section& section, const Section& scores,
                                            std::size_t classCount) {
  std::vector<std::string_view> lines = section.lines;
  if (!section.isEnded && section.promised) lines.resize(std::min(lines.size(), *section.promised));
  std::map<ContestantNumber, int> uses;
  for (std::string_view& line : lines) {
    if (!isContestant(line)) line = {};
    if (!line.empty()) ++uses[leadingNumber(line)];
  }
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].empty() || uses[leadingNumber(lines[i])] == 1) continue;
    const std::size_t first = std::min(i * classCount, scores.lines.size());
    const std::size_t last = std::min(first + classCount, scores.lines.size());
    bool isConfirmed = false;
    for (std::size_t at = first; at < last; ++at) {
      const std::string_view score = scores.lines[at];
      isConfirmed |= isScore(score) && leadingNumber(score) == leadingNumber(lines[i]);
    }
    if (!isConfirmed) lines[i] = {};
  }
  return lines;
}

/// The scores that are where they must be. A file has them contestant by contestant and class by
/// class, so that a damaged number shows; a line that was lost moves all behind it alike.
std::vector<std::string_view> scoresOf(const Section& section, std::size_t classCount,
                                       const std::vector<std::string_view>& contestants) {
  const std::vector<std::string_view>& lines = section.lines;
  std::map<ContestantNumber, std::size_t> rows;
  for (std::size_t i = 0; i < contestants.size(); ++i) {
    if (!contestants[i].empty()) rows[leadingNumber(contestants[i])] = i;
  }
  std::vector<std::optional<std::int64_t>> moved(lines.size() + 2);  // by how many lines
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (!isScore(lines[i])) continue;
    const std::int32_t k = classOf(lines[i]);
    const auto row = rows.find(leadingNumber(lines[i]));
    if (row == rows.end() || k < 0 || static_cast<std::size_t>(k) >= classCount) continue;
    moved[i + 1] =
        static_cast<std::int64_t>(row->second * classCount) + k - static_cast<std::int64_t>(i);
  }
  // The first line and the last one have the section's ends for neighbours.
  const auto missing = static_cast<std::int64_t>(classCount * contestants.size()) -
                       static_cast<std::int64_t>(lines.size());
  moved.front() = 0;
  moved.back() = missing;
  std::vector<std::string_view> scores;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const auto& here = moved[i + 1];
    if (here && (missing == 0 ? *here == 0 : here == moved[i] || here == moved[i + 2])) {
      scores.push_back(lines[i]);
    }
  }
  return scores;
}

template <typename Lines>
void appendSection(std::string& out, SectionKind section, const Lines& lines) {
  out.append(kMarkers[section]).append(kLineEnd);
  out.append(std::to_string(lines.size())).append(kLineEnd);
  for (const auto& line : lines) out.append(line).append(kLineEnd);
}

}  // namespace

std::optional<Contest> salvageContest(std::string_view bytes) {
  constexpr std::string_view kNobodysScore = "-1\t-1\t \t0\t0\t0";
  Sections sections = sectionsOf(bytes);
  std::string whole;
  for (const std::string_view line : sections[kSettings].lines) {
    if (isSetting(line)) whole.append(line).append(kLineEnd);
  }
  if (whole.empty()) return std::nullopt;
  const auto classes = classesOf(sections[kClasses], sections[kScores]);
  auto contestants = contestantsOf(sections[kContestants], sections[kScores], classes.size());
  auto scores = scoresOf(sections[kScores], classes.size(), contestants);
  std::erase_if(contestants, [](std::string_view line) { return line.empty(); });
  std::erase_if(sections[kTeams].lines, [](std::string_view line) { return !isTeam(line); });
  scores.resize(classes.size() * contestants.size(), kNobodysScore);
  appendSection(whole, kClasses, classes);
  appendSection(whole, kContestants, contestants);
  appendSection(whole, kTeams, sections[kTeams].lines);
  appendSection(whole, kScores, scores);
  return readRemains(whole);
}

}  // namespace scorvane
