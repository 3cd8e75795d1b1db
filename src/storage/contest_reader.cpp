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
#include "storage/settings_reader.h"
#include "text/number.h"

namespace scorvane {

namespace {

bool skipTo(LineScanner& lines, std::string_view marker) {
  while (const auto line = lines.next()) {
    if (*line == marker) return true;
  }
  return false;
}

/// The count that stands on a line of its own.
std::optional<std::int32_t> readCount(LineScanner& lines) {
  const auto line = lines.next();
  if (!line) return std::nullopt;
  return leadingNumber(*line);
}

/// How many records a section promises, nothing when it promises fewer than none.
std::optional<std::int32_t> readRecordCount(LineScanner& lines) {
  const auto count = readCount(lines);
  return count && *count >= 0 ? count : std::nullopt;
}

/// Room worth making for `count` promised lines: no more than the file can hold.
std::size_t plausibleCount(const LineScanner& lines, std::int32_t count) {
  constexpr std::size_t kShortestUsualLine = 8;
  return std::min(static_cast<std::size_t>(count), lines.size() / kShortestUsualLine);
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

/// Gives the number of lines read, which is that of contestants unless one comes twice.
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

/// Empty names stand in the file as a single blank.
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

/// A team line that lacks members reads them as 0, so slots are promised rather than given. They
/// must be few compared with the bytes of the file, which they are in every file written here.
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

void unassignThoseWithoutCell(Contest& contest) {
  for (auto& [number, place] : contest.reasonsPlace) {
    if (!place.isAssigned()) continue;
    if (contest.reasonsOrder.cell(place.position, place.group) != number) place = {};
  }
}

// The table follows from the places. A place outside the table, or one that a later contestant
// holds too, is given up, so that the person turns up among the unassigned.
void rebuildReasonsOrder(Contest& contest) {
  ReasonsOrder& order = contest.reasonsOrder;
  order.reset(reasonsRows(contest), contest.settings.numReasonsGroups);
  std::vector<ReasonsOrder::Cells::Entry> cells;
  std::size_t assigned = 0;
  for (const auto& [number, place] : contest.reasonsPlace) {
    if (!place.isAssigned()) continue;
    ++assigned;
    if (place.group >= order.columnCount()) continue;
    cells.push_back({{place.group, place.position}, number});
  }
  order.setCells(std::move(cells));
  if (order.cells().size() != assigned) unassignThoseWithoutCell(contest);
}

std::variant<Contest, ContestFault> readContest(LineScanner& lines) {
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

}  // namespace

std::variant<Contest, ContestFault> readContest(std::string_view bytes) {
  LineScanner lines(bytes);
  return readContest(lines);
}

std::variant<Contest, ContestFault> readContest(InputFile& file) {
  LineScanner lines(file);
  auto contest = readContest(lines);
  if (lines.failed()) return ContestFault::unreadable;
  return contest;
}

}  // namespace scorvane
