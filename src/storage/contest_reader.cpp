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

/// The file that is being read.
struct Source {
  LineScanner lines;
  bool isWhole;               ///< else it is what is left of one
  bool guessesSlots = false;  ///< the team size has a line without a value
  std::int64_t leftOver = 0;  ///< the first line of a record that no count covers
};

/// Skips lines. A record among them shows that a count or a line is wrong.
bool skipTo(Source& source, std::string_view marker) {
  while (const auto line = source.lines.next()) {
    if (*line == marker) return true;
    const bool isRecord = line->find('\t') != std::string_view::npos;
    if (isRecord && source.leftOver == 0) source.leftOver = source.lines.lineNumber();
  }
  return false;
}

/// A count, which has a line of its own. A record there stands where the count is lost.
std::optional<std::int32_t> readCount(LineScanner& lines) {
  const auto line = lines.next();
  if (!line || line->find('\t') != std::string_view::npos) return std::nullopt;
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
bool readSettings(Source& source, Contest& contest) {
  contest.categories = {kNoCategory};
  for (int counter = 1; const auto line = source.lines.next(); ++counter) {
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
      const std::string_view value = fields.nextOrEmpty();
      setValue(contest.settings, *setting, value);
      if (setting->key == kTeamSizeKey) source.guessesSlots = value.empty();
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

/// False when the line ends before the three cuts.
bool addClass(std::string_view line, Contest& contest) {
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
  const std::string_view cuts = fields.nextOrEmpty();
  std::int32_t category = leadingNumber(fields.nextOrEmpty());
  if (category < 0 || static_cast<std::size_t>(category) >= contest.categories.size()) {
    category = 0;
  }
  contest.classes.add(std::string(name), reasons, questions,
                      letter.empty() ? kNoLetter : letter.front(), parseCuts(cuts), category);
  return std::count(cuts.begin(), cuts.end(), ',') >= 2;
}

bool readClasses(Source& source, Contest& contest) {
  const auto count = readRecordCount(source.lines);
  if (!count) return false;
  for (std::int32_t i = 0; i < *count; ++i) {
    const auto line = source.lines.nextRecord();
    if (!line || (!addClass(*line, contest) && source.isWhole)) return false;
  }
  return true;
}

/// The contestants' lines as they come.
struct ContestantLines {
  std::vector<std::pair<ContestantNumber, std::string>> names;
  std::vector<std::pair<ContestantNumber, char>> groups;
  std::vector<std::pair<ContestantNumber, ReasonsPlace>> places;
  /// How many fields those with a name have behind it: a shorter one was cut off.
  int placeFields = -1;  ///< not known yet

  explicit ContestantLines(std::size_t room) {
    names.reserve(room);
    groups.reserve(room);
    places.reserve(room);
  }

  /// False when the line is shorter than those before, or has nothing behind its number.
  bool add(std::string_view line, const ContestSettings& settings) {
    FieldScanner fields(line);
    const ContestantNumber number = leadingNumber(fields.nextOrEmpty());
    const auto name = fields.next();
    ReasonsPlace place;
    int found = 0;
    for (std::int32_t* part : {&place.group, &place.position}) {
      const auto field = fields.next();
      if (!field) break;
      *part = leadingNumber(*field);
      ++found;
    }
    names.emplace_back(number, name.value_or(""));
    groups.emplace_back(number, groupOfNumber(settings, number));
    places.emplace_back(number, place);
    if (!name || name->empty()) return name.has_value();
    if (placeFields < 0) placeFields = found;
    return found == placeFields;
  }

  /// How many lines come after the first one whose number came before; nothing when all differ.
  [[nodiscard]] std::optional<std::int64_t> behindFirstDouble() const {
    const auto notAscending = [](const auto& a, const auto& b) { return a.first >= b.first; };
    if (std::adjacent_find(names.begin(), names.end(), notAscending) == names.end()) return {};
    std::vector<std::pair<ContestantNumber, std::size_t>> order;
    for (std::size_t i = 0; i < names.size(); ++i) order.emplace_back(names[i].first, i);
    std::sort(order.begin(), order.end());
    std::size_t first = names.size();
    for (std::size_t i = 1; i < order.size(); ++i) {
      if (order[i].first == order[i - 1].first) first = std::min(first, order[i].second);
    }
    if (first == names.size()) return {};
    return static_cast<std::int64_t>(names.size() - 1 - first);
  }
};

/// Returns the line that is wrong, 0 for none.
std::int64_t readContestants(Source& source, std::int32_t& count, Contest& contest) {
  LineScanner& lines = source.lines;
  if (!skipTo(source, kContestantsMarker)) return lines.lineNumber();
  const auto found = readRecordCount(lines);
  if (!found) return lines.lineNumber();
  count = *found;
  ContestantLines read(plausibleCount(lines, count));
  for (std::int32_t i = 0; i < count; ++i) {
    const auto line = lines.nextRecord();
    if (!line || (!read.add(*line, contest.settings) && source.isWhole)) {
      return lines.lineNumber();
    }
  }
  if (source.isWhole) {
    if (const auto behind = read.behindFirstDouble()) return lines.lineNumber() - *behind;
  }
  contest.contestantNames = decltype(contest.contestantNames)::fromEntries(std::move(read.names));
  contest.contestantGroup = decltype(contest.contestantGroup)::fromEntries(std::move(read.groups));
  contest.reasonsPlace = decltype(contest.reasonsPlace)::fromEntries(std::move(read.places));
  updateNextContestant(contest);
  return 0;
}

/// The file has a single blank for an empty name.
std::string_view teamText(std::string_view field) {
  return field == " " ? "" : field;
}

/// False when the line has other than one field for each slot, unless the writer had no room for
/// the rest: members of one that was cut off would be nobody, and their scores lost to the team.
bool addTeam(std::string_view line, std::size_t slots, bool guessesSlots, Contest& contest) {
  constexpr std::size_t kLongestMember = 12;
  FieldScanner fields(line);
  const std::string name(teamText(fields.nextOrEmpty()));
  const auto coach = fields.next();
  Team team;
  team.coach = teamText(coach.value_or(""));
  while (team.members.size() < slots) {
    const auto member = fields.next();
    if (!member) break;
    team.members.push_back(leadingNumber(*member));
  }
  const bool isFull = line.size() + kLongestMember > kLineRoom;
  const bool hasNoMore = guessesSlots || !fields.next();
  // The file makes two names the same only where it has no room for them.
  const bool isNew = isFull || !contest.teams.contains(name);
  const bool fits = coach && isNew && hasNoMore && (team.members.size() == slots || isFull);
  team.members.resize(slots);
  contest.teams.insert_or_assign(contest.teams.end(), name, std::move(team));
  return fits;
}

bool readTeams(Source& source, Contest& contest) {
  if (!skipTo(source, kTeamsMarker)) return false;
  const auto count = readRecordCount(source.lines);
  if (!count) return false;
  const std::size_t slots = teamSlots(contest.settings);
  // Lines cut off could ask for slots without end.
  const std::size_t mostLeft = 4 * source.lines.size();
  for (std::int32_t i = 0; i < *count; ++i) {
    if (!source.isWhole && slots * contest.teams.size() > mostLeft) return false;
    const auto line = source.lines.nextRecord();
    if (!line || (!addTeam(*line, slots, source.guessesSlots, contest) && source.isWhole)) {
      return false;
    }
  }
  return true;
}

ContestFault notAContest(std::int64_t line) {
  return {ContestFault::notAContest, line};
}

std::variant<Contest, ContestFault> read(std::string_view bytes, bool isWhole) {
  Source source{LineScanner(bytes), isWhole};
  LineScanner& lines = source.lines;
  Contest contest = newContest();
  if (bytes.starts_with(kUnfinishedMark)) return notAContest(1);
  if (!readSettings(source, contest)) return notAContest(lines.lineNumber());
  contest.groupLetters = makeGroupLetters(contest.settings.numGroups);
  if (!readClasses(source, contest)) return notAContest(lines.lineNumber());
  std::int32_t contestants = 0;
  if (const auto line = readContestants(source, contestants, contest)) return notAContest(line);
  if (!readTeams(source, contest)) return notAContest(lines.lineNumber());
  rebuildReasonsOrder(contest);
  if (!skipTo(source, kScoresMarker)) return notAContest(lines.lineNumber());
  const auto scoreCount = readCount(lines);
  if (!scoreCount) return notAContest(lines.lineNumber());
  const std::int64_t expected = std::int64_t{contest.classes.count()} * contestants;
  if (*scoreCount != expected) {
    return ContestFault{ContestFault::scoreCountMismatch, lines.lineNumber()};
  }
  if (source.leftOver > 0) return notAContest(source.leftOver);
  if (!isWhole) {
    readScoresLeft(lines, expected, contest);
  } else if (const auto line = readScores(lines, contest)) {
    return notAContest(line);
  }
  return contest;
}

}  // namespace

std::variant<Contest, ContestFault> readContest(std::string_view bytes) {
  return read(bytes, true);
}

std::optional<Contest> readRemains(std::string_view bytes) {
  auto reading = read(bytes, false);
  auto* contest = std::get_if<Contest>(&reading);
  return contest == nullptr ? std::nullopt : std::optional(std::move(*contest));
}

}  // namespace scorvane
