#include "storage/contest_writer.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <variant>

#include "storage/contest_format.h"
#include "text/number.h"

namespace scorvane {

namespace {

void appendField(std::string& out, std::int64_t number) {
  out += '\t';
  appendNumber(out, number);
}

/// The text up to the first character that a field cannot hold.
std::string_view fieldOf(const std::string& text) {
  using namespace std::string_view_literals;
  return std::string_view(text).substr(0, text.find_first_of("\t\r\0"sv));
}

/// Appends `before`, as much of the text as the line holds, and `after`.
void appendLine(std::string& out, std::string_view before, std::string_view text,
                std::string_view after) {
  out += before;
  out += text.substr(0, kLineRoom - before.size() - after.size());
  out += after;
  out += kLineEnd;
}

void appendSectionStart(std::string& out, std::string_view marker, std::int64_t count) {
  out += marker;
  out += kLineEnd;
  appendNumber(out, count);
  out += kLineEnd;
}

void appendCategories(std::string& out, const std::vector<std::string>& categories) {
  std::string line(kCategoriesKey);
  for (const std::string& category : categories) {
    if (line.size() + 1 >= kLineRoom) break;
    line += '\t';
    line += fieldOf(category).substr(0, kLineRoom - line.size());
  }
  // A single name that is empty would read back as the placeholder; so does none at all.
  if (line.size() <= kCategoriesKey.size() + 1) {
    line.assign(kCategoriesKey).append("\t").append(kNoCategory);
  }
  out += line;
  out += kLineEnd;
}

std::int32_t numberOf(const ContestSettings& settings, const SettingLine& line) {
  if (const auto* flag = std::get_if<bool ContestSettings::*>(&line.value)) {
    return settings.**flag ? 1 : 0;
  }
  return settings.*std::get<std::int32_t ContestSettings::*>(line.value);
}

void appendSettings(std::string& out, const Contest& contest) {
  for (const SettingLine& line : kSettingLines) {
    const std::string before = std::string(line.key) + "\t";
    if (const auto* text = std::get_if<std::string ContestSettings::*>(&line.value)) {
      appendLine(out, before, fieldOf(contest.settings.**text), "");
    } else {
      out += before;
      appendNumber(out, numberOf(contest.settings, line));
      out += kLineEnd;
    }
  }
  appendCategories(out, contest.categories);
}

void appendClasses(std::string& out, const JudgingClasses& classes) {
  appendSectionStart(out, kClassesMarker, classes.count());
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    std::string fields;
    fields += classes.hasReasons(k) ? "\tYes" : "\tNo";
    fields += classes.hasQuestions(k) ? "\tYes\t" : "\tNo\t";
    fields += classes.official(k);
    const Cuts cuts = classes.cuts(k);
    appendField(fields, cuts.cut1);
    fields += ',';
    appendNumber(fields, cuts.cut2);
    fields += ',';
    appendNumber(fields, cuts.cut3);
    appendField(fields, classes.category(k));
    appendLine(out, "", fieldOf(classes.name(k)), fields);
  }
}

void appendContestants(std::string& out, const Contest& contest) {
  appendSectionStart(out, kContestantsMarker,
                     static_cast<std::int64_t>(contest.contestantNames.size()));
  std::string before;
  std::string after;
  for (const auto& [number, name] : contest.contestantNames) {
    before.clear();
    after.clear();
    appendNumber(before, number);
    before += '\t';
    const std::string_view field = fieldOf(name);
    if (!field.empty()) {
      const ReasonsPlace place = reasonsPlaceOf(contest, number);
      appendField(after, place.group);
      appendField(after, place.position);
    }
    appendLine(out, before, field, after);
  }
}

/// The member fields, none of them cut: part of a number is another number.
std::string memberFields(const Team& team, std::int32_t slots) {
  std::string fields;
  for (std::int32_t slot = 0; slot < slots && fields.size() <= kLineRoom; ++slot) {
    const auto index = static_cast<std::size_t>(slot);
    appendField(fields, index < team.members.size() ? team.members[index] : 0);
  }
  return fields;
}

// Members come first: on a crowded line the names are cut, down to a length that still tells
// teams apart, before a member is left out.
void appendTeam(std::string& out, const std::string& teamName, const Team& team,
                std::int32_t slots) {
  constexpr std::size_t kKeptName = 40;
  constexpr std::size_t kKeptCoach = 24;
  std::string_view name = fieldOf(teamName);
  std::string_view coach = fieldOf(team.coach);
  if (name.empty()) name = " ";
  if (coach.empty()) coach = " ";
  const std::size_t kept =
      std::min(name.size(), kKeptName) + 1 + std::min(coach.size(), kKeptCoach);
  std::string members = memberFields(team, slots);
  std::size_t room = kept;
  if (kept + members.size() <= kLineRoom) {
    room = kLineRoom - members.size();
  } else {
    members.resize(members.rfind('\t', kLineRoom - kept));
  }
  if (name.size() + 1 + coach.size() > room) {
    name = name.substr(0, room - 1 - std::min(coach.size(), kKeptCoach));
    coach = coach.substr(0, room - 1 - name.size());
  }
  out += name;
  out += '\t';
  out += coach;
  out += members;
  out += kLineEnd;
}

void appendTeams(std::string& out, const Contest& contest) {
  appendSectionStart(out, kTeamsMarker, static_cast<std::int64_t>(contest.teams.size()));
  for (const auto& [name, team] : contest.teams) {
    appendTeam(out, name, team, contest.settings.totalNumPerTeam);
  }
}

void appendScoreLine(std::string& out, ContestantNumber number, std::int32_t classIndex,
                     const ScoreRecord& record) {
  appendNumber(out, number);
  appendField(out, classIndex);
  out += '\t';
  out += record.letter;
  appendField(out, record.placingScore);
  appendField(out, record.reasonsScore);
  appendField(out, record.questionsScore);
  out += kLineEnd;
}

void appendScores(std::string& out, const Contest& contest) {
  const std::int32_t classCount = contest.classes.count();
  appendSectionStart(
      out, kScoresMarker,
      std::int64_t{classCount} * static_cast<std::int64_t>(contest.contestantNames.size()));
  static const ClassScores noScores;
  for (const auto& entry : contest.contestantNames) {
    const ClassScores* known = contest.scores.find(entry.first);
    const ClassScores& records = known == nullptr ? noScores : *known;
    auto record = records.lowerBound(0);
    for (std::int32_t k = 0; k < classCount; ++k) {
      const bool entered = record != records.end() && record->first == k;
      appendScoreLine(out, entry.first, k, entered ? record->second : ScoreRecord{});
      if (entered) ++record;
    }
  }
}

}  // namespace

std::string writeContest(const Contest& contest) {
  constexpr std::size_t kUsualScoreLine = 20;
  constexpr std::size_t kUsualContestantLine = 40;
  const auto classCount = static_cast<std::size_t>(contest.classes.count());
  std::string out;
  out.reserve(4096 + contest.contestantNames.size() *
                         (kUsualContestantLine + classCount * kUsualScoreLine));
  appendSettings(out, contest);
  appendClasses(out, contest.classes);
  appendContestants(out, contest);
  appendTeams(out, contest);
  appendScores(out, contest);
  for (int i = 0; i < 2; ++i) {
    out += kTrailerLine;
    out += kLineEnd;
  }
  return out;
}

}  // namespace scorvane
