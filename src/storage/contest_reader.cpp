#include "storage/contest_reader.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "model/new_contest.h"
#include "model/numbering.h"
#include "model/reasons_places.h"
#include "storage/contest_format.h"
#include "storage/line_scanner.h"
#include "storage/score_reader.h"
#include "text/number.h"

namespace scorvane {

namespace {

bool skipTo(LineScanner& lines, std::string_view marker) {
  while (const auto line = lines.next()) {
    if (*line == marker) return true;
  }
  return false;
}

/// A count, which has a line of its own.
std::optional<std::int32_t> readCount(LineScanner& lines) {
  const auto line = lines.next();
  if (!line) return std::nullopt;
  return leadingNumber(*line);
}

/// The count of a section's records; nothing when it is below 0. Counts in the file are never
/// trusted: the lines decide.
std::optional<std::int32_t> readRecordCount(LineScanner& lines) {
  const auto count = readCount(lines);
  return count && *count >= 0 ? count : std::nullopt;
}

/// How many elements to reserve for `count` promised lines: no more than the file can hold.
std::size_t plausibleCount(const LineScanner& lines, std::int32_t count) {
  constexpr std::size_t kShortestUsualLine = 8;
  return std::min(static_cast<std::size_t>(count), lines.size() / kShortestUsualLine);
}

/// What settings get whose line has no value.
ContestSettings settingsWithoutValues() {
  ContestSettings settings = newContest().settings;
  // Odd but required, docs/required-behaviour.md: missing-numbers-swapped
  std::swap(settings.numToScore, settings.numToReport);
  return settings;
}

void setValue(ContestSettings& settings, const SettingLine& line, std::string_view text) {
  if (text.empty()) {
    ContestSettings missing = settingsWithoutValues();
    missing.totalNumPerTeam = settings.numPerTeam;
    std::visit([&](auto value) { settings.*value = missing.*value; }, line.value);
  } else if (const auto* words = std::get_if<std::string ContestSettings::*>(&line.value)) {
    settings.** words = text;
  } else if (const auto* flag = std::get_if<bool ContestSettings::*>(&line.value)) {
    settings.** flag = leadingNumber(text) == 1;
  } else {
    settings.*std::get<std::int32_t ContestSettings::*>(line.value) = leadingNumber(text);
  }
}

std::vector<std::string> readCategories(FieldScanner& fields) {
  std::vector<std::string> names;
  while (const auto name = fields.next()) names.emplace_back(*name);
  if (names.empty() || (names.size() == 1 && names[0].empty())) names = {kNoCategory};
  return names;
}

/// Reads settings up to and including the line that begins the classes. False when that line does
/// not come soon.
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
      continue;
    }
    // Odd but required, docs/required-behaviour.md: lines-after-the-categories
    contest.categories = {kNoCategory};
    const auto* setting =
        std::find_if(kSettingLines.begin(), kSettingLines.end(),
                     [key](const SettingLine& known) { return known.key == key; });
    if (setting != kSettingLines.end()) {
      setValue(contest.settings, *setting, fields.nextOrEmpty());
    }
  }
  return false;
}

Cuts parseCuts(std::string_view field) {
  Cuts cuts;
  for (std::int32_t* cut : {&cuts.cut1, &cuts.cut2, &cuts.cut3}) {
    *cut = leadingNumber(field.substr(0, field.find(',')));
    const std::size_t comma = field.find(',');
    field.remove_prefix(comma == std::string_view::npos ? field.size() : comma + 1);
  }
  return cuts;
}

void addClass(std::string_view line, Contest& contest) {
  FieldScanner fields(line);
  const std::string_view name = fields.nextOrEmpty();
  const bool reasons = fields.nextOrEmpty() == "Yes";
  std::string_view letter = fields.nextOrEmpty();
  bool questions = false;
  // Files written before there were questions have the letter in this field already.
  if (letter == "Yes" || letter == "No") {
    questions = letter == "Yes";
    letter = fields.nextOrEmpty();
  }
  const Cuts cuts = parseCuts(fields.nextOrEmpty());
  std::int32_t category = leadingNumber(fields.nextOrEmpty());
  if (category < 0 || static_cast<std::size_t>(category) >= contest.categories.size()) {
    category = 0;
  }
  contest.classes.add(std::string(name), reasons, questions,
                      letter.empty() ? kNoLetter : letter.front(), cuts, category);
}

bool readClasses(LineScanner& lines, Contest& contest) {
  const auto count = readRecordCount(lines);
  if (!count) return false;
  for (std::int32_t i = 0; i < *count; ++i) {
    const auto line = lines.nextRecord();
    if (!line) return false;
    addClass(*line, contest);
  }
  return true;
}

ReasonsPlace parsePlace(FieldScanner& fields) {
  ReasonsPlace place;
  if (const auto group = fields.next()) place.group = leadingNumber(*group);
  if (const auto position = fields.next()) place.position = leadingNumber(*position);
  return place;
}

/// Returns the number of lines read, which is that of contestants unless one comes twice.
std::optional<std::int32_t> readContestants(LineScanner& lines, Contest& contest) {
  if (!skipTo(lines, kContestantsMarker)) return std::nullopt;
  const auto count = readRecordCount(lines);
  if (!count) return std::nullopt;
  std::vector<std::pair<ContestantNumber, std::string>> names;
  std::vector<std::pair<ContestantNumber, char>> groups;
  std::vector<std::pair<ContestantNumber, ReasonsPlace>> places;
  const std::size_t room = plausibleCount(lines, *count);
  names.reserve(room);
  groups.reserve(room);
  places.reserve(room);
  for (std::int32_t i = 0; i < *count; ++i) {
    const auto line = lines.nextRecord();
    if (!line) return std::nullopt;
    FieldScanner fields(*line);
    const ContestantNumber number = leadingNumber(fields.nextOrEmpty());
    names.emplace_back(number, fields.nextOrEmpty());
    groups.emplace_back(number, groupOfNumber(contest.settings, number));
    places.emplace_back(number, parsePlace(fields));
  }
  contest.contestantNames = decltype(contest.contestantNames)::fromEntries(std::move(names));
  contest.contestantGroup = decltype(contest.contestantGroup)::fromEntries(std::move(groups));
  contest.reasonsPlace = decltype(contest.reasonsPlace)::fromEntries(std::move(places));
  updateNextContestant(contest);
  return count;
}

/// The file has a single blank for an empty name.
std::string_view teamText(std::string_view field) {
  return field == " " ? "" : field;
}

void addTeam(std::string_view line, std::size_t slots, Contest& contest) {
  FieldScanner fields(line);
  const std::string name(teamText(fields.nextOrEmpty()));
  Team team;
  team.coach = teamText(fields.nextOrEmpty());
  team.members.reserve(slots);
  for (std::size_t slot = 0; slot < slots; ++slot) {
    team.members.push_back(leadingNumber(fields.nextOrEmpty()));
  }
  contest.teams.insert_or_assign(contest.teams.end(), name, std::move(team));
}

/// Members that a team line lacks read as 0, so a short line can ask for many slots. A damaged file
/// must not fill the memory that way; in every file written here slots are few for its bytes.
bool hasRoomForSlots(std::size_t slots, std::size_t teams, std::size_t fileSize) {
  constexpr std::size_t kSlotsPerByte = 4;
  return slots * teams <= kSlotsPerByte * fileSize;
}

bool readTeams(LineScanner& lines, Contest& contest) {
  if (!skipTo(lines, kTeamsMarker)) return false;
  const auto count = readRecordCount(lines);
  if (!count) return false;
  const std::size_t slots = teamSlots(contest.settings);
  for (std::int32_t i = 0; i < *count; ++i) {
    const auto line = lines.nextRecord();
    const std::size_t teams = static_cast<std::size_t>(i) + 1;
    if (!line || !hasRoomForSlots(slots, teams, lines.size())) return false;
    addTeam(*line, slots, contest);
  }
  return true;
}

}  // namespace

std::variant<Contest, ContestFault> readContest(std::string_view bytes) {
  LineScanner lines(bytes);
  Contest contest = newContest();
  if (!readSettings(lines, contest)) return ContestFault::notAContest;
  contest.groupLetters = makeGroupLetters(contest.settings.numGroups);
  if (!readClasses(lines, contest)) return ContestFault::notAContest;
  const auto contestants = readContestants(lines, contest);
  if (!contestants) return ContestFault::notAContest;
  if (!readTeams(lines, contest)) return ContestFault::notAContest;
  rebuildReasonsOrder(contest);
  if (!skipTo(lines, kScoresMarker)) return ContestFault::notAContest;
  const auto scoreCount = readCount(lines);
  if (!scoreCount) return ContestFault::notAContest;
  const std::int64_t expected = std::int64_t{contest.classes.count()} * *contestants;
  if (*scoreCount != expected) return ContestFault::scoreCountMismatch;
  if (!readScores(lines, expected, contest)) return ContestFault::notAContest;
  return contest;
}

std::variant<LoadedContest, ContestFault> loadContestFile(FileSystem& files,
                                                          const std::string& path) {
  auto bytes = files.readWhole(path);
  if (!bytes) return ContestFault::unreadable;
  auto reading = readContest(*bytes);
  if (const auto* fault = std::get_if<ContestFault>(&reading)) return *fault;
  return LoadedContest{std::get<Contest>(std::move(reading)), std::move(*bytes)};
}

}  // namespace scorvane
