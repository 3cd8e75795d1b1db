#include "storage/contest_writer.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <variant>

#include "model/class_lists.h"
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

/// Texts that are not written whole.
using CutTexts = std::vector<Finding>;

Finding cutText(CutText cut, const std::string& text) {
  Finding finding;
  finding.kind = FindingKind::textCut;
  finding.cut = cut;
  finding.text = text;
  return finding;
}

/// Appends `before`, as much of the text's field as the line holds, and `after`. Returns whether
/// that is the whole text.
bool appendLine(std::string& out, std::string_view before, const std::string& text,
                std::string_view after) {
  const std::string_view kept = fieldOf(text).substr(0, kLineRoom - before.size() - after.size());
  out += before;
  out += kept;
  out += after;
  out += kLineEnd;
  return kept.size() == text.size();
}

void appendSectionStart(std::string& out, std::string_view marker, std::int64_t count) {
  out += marker;
  out += kLineEnd;
  appendNumber(out, count);
  out += kLineEnd;
}

static_assert(kCategoriesKey.size() + kCategoriesRoom == kLineRoom);

void appendCategories(std::string& out, const std::vector<std::string>& categories,
                      CutTexts& shortened) {
  std::string line(kCategoriesKey);
  for (const std::string& category : categories) {
    std::string_view kept;
    if (line.size() + 1 < kLineRoom) {
      line += '\t';
      kept = fieldOf(category).substr(0, kLineRoom - line.size());
      line += kept;
    }
    if (kept.size() < category.size()) shortened.push_back(cutText(CutText::category, category));
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

CutText cutOf(std::string ContestSettings::*text) {
  if (text == &ContestSettings::contestName) return CutText::contestName;
  return text == &ContestSettings::divisionName ? CutText::divisionName : CutText::contestDate;
}

void appendSettings(std::string& out, const Contest& contest, CutTexts& shortened) {
  for (const SettingLine& line : kSettingLines) {
    const std::string before = std::string(line.key) + "\t";
    if (const auto* member = std::get_if<std::string ContestSettings::*>(&line.value)) {
      const std::string& text = contest.settings.**member;
      if (!appendLine(out, before, text, "")) shortened.push_back(cutText(cutOf(*member), text));
    } else {
      out += before;
      appendNumber(out, numberOf(contest.settings, line));
      out += kLineEnd;
    }
  }
  appendCategories(out, contest.categories, shortened);
}

void appendClasses(std::string& out, const JudgingClasses& classes, CutTexts& shortened) {
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
    if (appendLine(out, "", classes.name(k), fields)) continue;
    shortened.push_back(cutText(CutText::className, classes.name(k)));
    shortened.back().classIndex = k;
  }
}

void appendContestants(std::string& out, const Contest& contest, CutTexts& shortened) {
  appendSectionStart(out, kContestantsMarker,
                     static_cast<std::int64_t>(contest.contestantNames.size()));
  std::string before;
  std::string after;
  for (const auto& [number, name] : contest.contestantNames) {
    before.clear();
    after.clear();
    appendNumber(before, number);
    before += '\t';
    if (!fieldOf(name).empty()) {
      const ReasonsPlace place = reasonsPlaceOf(contest, number);
      appendField(after, place.group);
      appendField(after, place.position);
    }
    if (appendLine(out, before, name, after)) continue;
    shortened.push_back(cutText(CutText::contestantName, name));
    shortened.back().number = number;
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
void appendTeam(std::string& out, const std::string& teamName, const Team& team, std::int32_t slots,
                CutTexts& shortened) {
  constexpr std::size_t kKeptName = 40;
  constexpr std::size_t kKeptCoach = 24;
  std::string_view name = fieldOf(teamName);
  std::string_view coach = fieldOf(team.coach);
  if (name.empty()) name = " ";
  if (coach.empty()) coach = " ";
  const std::size_t kept =
      std::min(name.size(), kKeptName) + 1 + std::min(coach.size(), kKeptCoach);
  const auto noteCut = [&shortened, &teamName](CutText cut, const std::string& text) {
    shortened.push_back(cutText(cut, text));
    shortened.back().teams = {teamName};
  };
  std::string members = memberFields(team, slots);
  std::size_t room = kept;
  if (kept + members.size() <= kLineRoom) {
    room = kLineRoom - members.size();
  } else {
    noteCut(CutText::members, teamName);
    members.resize(members.rfind('\t', kLineRoom - kept));
  }
  if (name.size() + 1 + coach.size() > room) {
    name = name.substr(0, room - 1 - std::min(coach.size(), kKeptCoach));
    coach = coach.substr(0, room - 1 - name.size());
  }
  if (name.size() < teamName.size()) noteCut(CutText::teamName, teamName);
  if (coach.size() < team.coach.size()) noteCut(CutText::coach, team.coach);
  out += name;
  out += '\t';
  out += coach;
  out += members;
  out += kLineEnd;
}

void appendTeams(std::string& out, const Contest& contest, CutTexts& shortened) {
  appendSectionStart(out, kTeamsMarker, static_cast<std::int64_t>(contest.teams.size()));
  for (const auto& [name, team] : contest.teams) {
    appendTeam(out, name, team, contest.settings.totalNumPerTeam, shortened);
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

/// All but the scores.
void appendTexts(std::string& out, const Contest& contest, CutTexts& shortened) {
  appendSettings(out, contest, shortened);
  appendClasses(out, contest.classes, shortened);
  appendContestants(out, contest, shortened);
  appendTeams(out, contest, shortened);
}

}  // namespace

std::vector<Finding> cutTexts(const Contest& contest) {
  std::string out;
  CutTexts shortened;
  appendTexts(out, contest, shortened);
  return shortened;
}

std::string writeContest(const Contest& contest) {
  constexpr std::size_t kUsualScoreLine = 20;
  constexpr std::size_t kUsualContestantLine = 40;
  const auto classCount = static_cast<std::size_t>(contest.classes.count());
  std::string out;
  out.reserve(4096 + contest.contestantNames.size() *
                         (kUsualContestantLine + classCount * kUsualScoreLine));
  CutTexts shortened;
  appendTexts(out, contest, shortened);
  appendScores(out, contest);
  for (int i = 0; i < 2; ++i) {
    out += kTrailerLine;
    out += kLineEnd;
  }
  return out;
}

}  // namespace scorvane
