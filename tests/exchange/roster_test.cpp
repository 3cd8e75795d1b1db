// Sheets of teams and contestants: what they mean, and that importing them is typing them.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "exchange/roster_plan.h"
#include "session/open_contest.h"
#include "setup/setup_ids.h"
#include "setup/setup_teams_dialog.h"
#include "storage/contest_writer.h"
#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"
#include "tests/ui/memory_dialog.h"
#include "text/decoding.h"
#include "text/unicode.h"
#include "tools/contest_maker.h"
#include "tools/invented_names.h"

namespace scorvane {

namespace {

struct Person {
  std::string first, last;
  bool isAlternate = false;
  [[nodiscard]] std::string name() const { return first + " " + last; }
};
struct RosterTeam {
  std::string name, coach;
  std::vector<Person> people;
};
using Roster = std::vector<RosterTeam>;

class Chance {
 public:
  explicit Chance(std::uint32_t seed) : generator_(seed) {}
  std::size_t below(std::size_t end) { return generator_() % end; }
  bool once(std::size_t in) { return below(in) == 0; }
  template <typename List>
  std::string of(const List& list) {
    return std::string(list[below(std::size(list))]);
  }

 private:
  std::mt19937 generator_;
};

// Names as they will be stored; the letters beyond ASCII are in UTF-8 in the sheet.
Roster inventRoster(Chance& chance, std::size_t slots, std::size_t regular) {
  Roster roster;
  const std::size_t first = chance.below(kCounties.size());
  for (std::size_t i = 0; i < 1 + chance.below(12); ++i) {
    RosterTeam team{std::string(kCounties[(first + i) % kCounties.size()]), "", {}};
    if (chance.once(2)) team.coach = "Pat " + chance.of(kLastNames);
    std::size_t alternates = 0;
    for (std::size_t k = 0; k < chance.below(slots + 1); ++k) {
      const bool isAlternate = alternates < slots - regular && chance.once(4);
      if (isAlternate) ++alternates;
      std::string last = chance.of(kLastNames) + static_cast<char>('a' + k);
      if (chance.once(6)) last += "-B\xE9, \"O'\x80\"";
      team.people.push_back({chance.of(kFirstNames), last, isAlternate});
    }
    roster.push_back(team);
  }
  return roster;
}

void choose(MemoryDialog& dialog, ControlId list, const std::string& start) {
  const std::vector<std::string> lines = dialog.lines(list);
  const auto line = std::find_if(lines.begin(), lines.end(),
                                 [&](const std::string& text) { return text.starts_with(start); });
  ASSERT_NE(line, lines.end()) << start;
  dialog.choose(list, static_cast<int>(line - lines.begin()));
}

void typeTeam(MemoryDialog& dialog, const RosterTeam& team) {
  const Contest& contest = currentContest();
  const auto regular = static_cast<std::size_t>(contest.settings.numPerTeam);
  if (!contest.teams.contains(team.name)) {
    dialog.click(IDC_NEW_TEAM);
    dialog.fill(IDC_TEAM_NAME, team.name);
    for (const Person& person : team.people) {
      if (person.isAlternate) break;
      dialog.fill(IDC_MEMBER_NAME, person.name());
      dialog.pressEnter();
    }
    dialog.fill(IDC_TEAM_NAME, team.name);
    dialog.fill(IDC_COACH, team.coach);
    dialog.click(IDC_ADD_TEAM);
  }
  choose(dialog, IDC_TEAM_LIST, team.name);
  for (const Person& person : team.people) {
    const Team& written = contest.teams.at(team.name);
    std::optional<std::size_t> free;
    bool isThere = false;
    for (std::size_t i = written.members.size(); i-- > 0;) {
      const std::string& name = contestantName(contest, written.members[i]);
      isThere = isThere || name == person.name();
      if (name.empty() && (i >= regular || !person.isAlternate)) free = i;
    }
    if (isThere) continue;
    ASSERT_TRUE(free);
    choose(dialog, IDC_MEMBER_LIST, std::to_string(written.members[*free]) + " - ");
    dialog.fill(IDC_MEMBER_NAME, person.name());
    dialog.pressEnter();
  }
  if (!team.coach.empty() && contest.teams.at(team.name).coach.empty()) {
    dialog.fill(IDC_COACH, team.coach);
    dialog.click(IDC_UPDATE_TEAM);
  }
}

// Whoever finds no slot is not typed; such people come last in no roster here.
Contest typed(const Contest& contest, const Roster& roster) {
  currentContest() = contest;
  SetupTeamsDialog behaviour;
  MemoryDialog dialog(IDD_SETUP_TEAMS, behaviour);
  for (const RosterTeam& team : roster) typeTeam(dialog, team);
  dialog.click(IDC_TEAMS_DONE);
  return currentContest();
}

// A way to write the same roster down.
struct Dialect {
  explicit Dialect(Chance& by) : chance(by) {
    separator = "\t,;"[chance.below(3)];
    lineEnd = chance.of(std::vector<std::string>{"\r\n", "\n", "\r"});
    layout = chance.below(4);
    encoding = chance.below(5);
    quotesAll = chance.once(2);
  }

  std::string cell(std::string text) {
    if (chance.once(4)) text = "  " + text + (encoding == 0 ? "\xA0" : " ");
    const bool mustQuote =
        text.find_first_of(std::string("\"\r\n") + separator) != std::string::npos;
    if (!mustQuote && !quotesAll) return text;
    std::string quoted = "\"";
    for (const char c : text) quoted += c == '"' ? "\"\"" : std::string(1, c);
    return quoted + '"';
  }
  void row(const std::vector<std::string>& cells) {
    std::string line;
    if (hasEmptyColumn) line += separator;
    for (const std::string& text : cells) line += cell(text) + separator;
    if (chance.once(2)) line.pop_back();
    sheet += line + lineEnd;
    if (chance.once(8)) sheet += std::string(chance.below(3), separator) + lineEnd;
  }

  std::string write(const Roster& roster, std::size_t slots) {
    hasEmptyColumn = chance.once(3);
    if (layout != 0 && chance.once(2)) sheet += "Entries of the County Fair" + lineEnd + lineEnd;
    if (layout == 0) writeRows(roster);
    if (layout == 1) writeHeadedRows(roster, false);
    if (layout == 2) writeHeadedRows(roster, true);
    if (layout == 3) writeTeams(roster, slots);
    if (layout != 0 && chance.once(2)) row({"TOTAL", std::to_string(roster.size())});
    return encoded();
  }

  // Without headings nobody can be flagged.
  void writeRows(const Roster& roster) {
    for (const RosterTeam& team : roster) {
      if (team.people.empty()) row({team.name, "", team.coach});
      for (const Person& person : team.people) row({team.name, person.name(), team.coach});
    }
  }
  void writeHeadedRows(const Roster& roster, bool isApart) {
    std::vector<std::string> heads = {
        "Time stamp",
        chance.of(std::vector<std::string>{"Team Name", "COUNTY", "club"}),
        isApart ? "First Name" : "Contestant",
        isApart ? "LastName" : "Grade",
        "Alternate? (Yes/No)",
        "Coach's name",
        "E-mail of coach"};
    row(heads);
    for (const RosterTeam& team : roster) {
      bool isFirst = true;
      const auto add = [&](const Person& person) {
        const bool isNamed = isFirst || chance.once(2);
        row({"7/18/2026 9:05", isNamed ? team.name : "", isApart ? person.first : person.name(),
             isApart ? person.last : "9",
             person.isAlternate ? chance.of(std::vector<std::string>{"x", "Yes", "1"}) : "no",
             isNamed ? team.coach : "", "pat@example.org"});
        isFirst = false;
      };
      if (team.people.empty()) row({"", team.name, "", "", "", team.coach, ""});
      for (const Person& person : team.people) add(person);
    }
  }
  void writeTeams(const Roster& roster, std::size_t slots) {
    std::vector<std::string> heads = {"Leader", "School"};
    for (std::size_t i = 1; i <= slots; ++i) heads.push_back("Member " + std::to_string(i));
    for (std::size_t i = 1; i <= slots; ++i) heads.push_back("Alternate " + std::to_string(i));
    row(heads);
    for (const RosterTeam& team : roster) {
      std::vector<std::string> cells(heads.size());
      cells[0] = team.coach;
      cells[1] = team.name;
      std::size_t regular = 2, alternate = 2 + slots;
      for (const Person& person : team.people)
        cells[person.isAlternate ? alternate++ : regular++] = person.name();
      row(cells);
    }
  }

  [[nodiscard]] std::string encoded() const {
    if (encoding == 0) return sheet;
    const std::string utf8 = utf8OfFile(sheet);
    if (encoding == 1) return utf8;
    if (encoding == 2) return "\xEF\xBB\xBF" + utf8;
    std::string utf16 = encoding == 3 ? "\xFF\xFE" : "\xFE\xFF";
    const auto units = utf16Of(utf8);
    for (const char16_t unit : *units) {
      const char bytes[] = {static_cast<char>(unit >> 8U), static_cast<char>(unit & 0xFFU)};
      utf16 += encoding == 3 ? std::string{bytes[1], bytes[0]} : std::string{bytes[0], bytes[1]};
    }
    return utf16;
  }

  Chance& chance;
  char separator;
  std::string lineEnd;
  std::size_t layout;
  std::size_t encoding;
  bool quotesAll;
  bool hasEmptyColumn = false;
  std::string sheet;
};

std::string explained(const RosterPlan& plan, const Contest& contest) {
  std::string text;
  for (const std::string& line : planLines(plan, contest)) text += line + "\n";
  return text + planSummary(plan) + "\n";
}

std::string told(const std::string& sheet, const Contest& contest) {
  std::string shown = sheet.substr(0, 120);
  std::replace(shown.begin(), shown.end(), '\n', '|');
  return "> " + shown + "\n" + explained(planRoster(sheet, contest), contest);
}

// Two regular members and an alternate to a team; one team is there.
Contest smallContest() {
  ContestBuilder builder;
  builder.members(2, 3, 2).addClass({}).team("Oak", "", {"Ida Ash", "", ""});
  return builder.contest;
}

// Sheets as other programs write them, and as web forms export them.
TEST(Roster, ReadsTheSheetsOfOtherPrograms) {
  std::string log;
  for (const char* name :
       {"calc_utf8.csv", "calc_western_semicolons.csv", "calc_unicode_text.txt",
        "form_contestants.csv", "form_teams.tsv", "office_list.txt", "no_headings.csv"}) {
    const std::string bytes = sourceFile(std::string("tests/exchange/sheets/") + name);
    ASSERT_NE(bytes, "") << name;
    log += std::string("> ") + name + "\n" +
           explained(planRoster(bytes, smallContest()), smallContest());
  }
  expectApproved(log, "exchange/sheets.txt");
}

// What a sheet can hold besides, one small sheet each.
TEST(Roster, TellsWhatIsWrong) {
  const std::string longName(462, 'n');
  const std::string sheets[] = {
      "", "\n,,\n \xA0,\x7F\n", "Team,Name\n",
      // Without a team.
      "Team,Name,Coach\n,Ann\n,,Pat\nElm,Bob\n,Cy\n",
      // Too many, and alternates first.
      "Team\tName\tAlternate\nElm\tAnn\ty\nElm\tBob\tALT\nElm\tCy\nElm\tDee\tno\nElm\tEve\n",
      // A team that is there, in other words.
      "Team,Name,Coach\n o a k,IDA  ASH,Pat\nOAK,Jo Fir,Sam\nOak,Kim\nOak,Lou\n",
      // Twice in a row and in two.
      "Team,Member 1,Member 2\nElm,Ann,ann\nAsh,Bo,Cy\nAsh,bo,\n",
      "Team,Name\nElm," + longName + "\nElm," + longName.substr(1) + "\n" + longName +
          "abcdefghijklmnopqrstuv,Cy\n",
      // Wide rows; a row above the headings.
      "a,b,c\nTeam,Name\nElm,Lee, Ann\nElm,Bob,,\n",
      // Open quotes: on one line, over several, and quotes that open no cell.
      "Team,Name\nElm,\"Ann\nElm,Bob\n",
      "Team,Name\nElm,\"Ann\nElm,\"Bob\" Day\nElm,Cy \"C\" Day\n\"Ash\" , \"Dee\nFox\" \n",
      // Names that read the same.
      "Team,Name\nClearwater Junction A 1,Ann\nClearwater Junction A 2,Bob\n",
      // What is no heading, and what is one after all.
      "Contestant #,Team Number,County Agent,School,4-H Member's Name,Student\n1,2,Pat,Elm,Ann,9\n",
      "Team,Team Coach,FirstName,surname,Coach First Name\nElm,Pat,Ann,Lee,Sam\n",
      "Team,Contestant,Contestant,Contestant Alternate\nElm,Ann,Bob,Cy\n",
      "First Member;Second Member;Club\nAnn;Bob;Elm\n", "Team Members\nElm\tAnn\tPat\n",
      "Elm\nAsh\n",
      "Club,Coach School,Student Name (Grade),Name of Group,Group Leader,Team Member\n"
      "Elm,X,Ann,X,Pat,X\n",
      "School,Team Member 1,Team Member 2,Parent's Name,Coach (School)\nElm,Ann,Bob,X,Pat\n",
      // Teams and people that are called like headings.
      "Clay County,Judge Lee,Pat Coach\nOak County,Judge,Sam\n", "Elm,Judge,Pat\n",
      "Team 1,Judge 1,Pat Coach\nTeam 1,Judge 2,\nTeam 2,Judge 3,Sam\n",
      "Clay County,Judge\nClay County,Ann Lee\n", "Elm,Ann,Pat\nSchool,Judge,\nAsh,Alt,\n",
      "Teams\nSponsoring Chapter,Judge,Fee\nElm,Ann,5\n",
      "Fair,Judges\nWhich club?,Contestant Attending,Teacher in charge\nElm,Ann,Pat\n",
      // Who is an alternate, and who may be one.
      "Team,Name,Alternate\nElm,Ann,No\nElm,Bob,perhaps\nAsh,,perhaps\nElm,Cy,-\n",
      // Every kind of blank, quotes, letters that have to be changed, and letters coded apart.
      "Team,Name\nElm,\xE2\x80\x9C\xE2\x80\x9A"
      "Al\xE2\x80\x9D\xE2\x80\xAFO\xE2\x80\x99"
      "Day\nElm,Zoe\xCC\x88 "
      "P\xC5\x99\xC3\xADk\xE4\xB8\xAD\n"
      "Ng\xE1\xBB\x8D"
      "c,Mi\xCC\x8Bk\xE2\x80\x8B\n"};
  std::string log;
  for (const std::string& sheet : sheets) log += told(sheet, smallContest());
  expectApproved(log, "exchange/problems.txt");
}

// The team of the very name comes first; 102 is a free slot of two teams; at last there are no more
// numbers.
TEST(Roster, KeepsToWhatTheContestHas) {
  ContestBuilder capitals, builder;
  capitals.members(2, 2, 2).team("ELM", "", {"Ann", ""}).team("Elm", "", {"Bob", ""});
  builder.members(2, 2, 2).team("Clearwater Junction 1", "Pat", {"Ann", ""});
  builder.team("Fir", "", {"", ""}).team("Oak Grove Junction 4-H 1", "", {});
  Contest& contest = builder.contest;
  contest.teams["Fir"].members[1] = 102;
  std::string log = told("elm,Ann\nElm,Cy\nELM,Dee\nElm,bob\n", capitals.contest) +
                    told(
                        "Team,Name,Coach\nClearwater Junction 1,Bob,Sam\n"
                        "Clearwater Junction 1,,Sam\nFir,Cy,\nFir,Dee,\nClearwater Junction 10,,\n"
                        "Oak Grove Junction 4-H \xC5\x82,Eve,\xC5\x81\n",
                        contest);
  contest.contestantNames[2'147'483'645] = "Last";
  expectApproved(log + told("Ash,Eve\n", contest), "exchange/teams_that_are_there.txt");
}

TEST(Roster, ImportingIsTyping) {
  int imports = 0;
  for (std::uint32_t seed = 1; seed <= 150; ++seed) {
    Chance chance(seed);
    ContestPlan size;
    size.contestants = static_cast<std::int32_t>(chance.below(3) * 12);
    size.perTeam = static_cast<std::int32_t>(1 + chance.below(4));
    size.alternates = static_cast<std::int32_t>(chance.below(3));
    size.emptyPercent = 40;
    size.classes = static_cast<std::int32_t>(chance.below(3));
    Contest contest = makeContest(size);
    const std::size_t slots = teamSlots(contest.settings);
    const auto regular = static_cast<std::size_t>(size.perTeam);
    Roster roster = inventRoster(chance, slots, regular);
    Dialect dialect(chance);
    // Without a heading a column is known by what it holds.
    if (dialect.layout == 0 && roster.front().people.empty()) dialect.layout = 1;
    if (dialect.layout == 0) {
      for (RosterTeam& team : roster) {
        for (Person& person : team.people) person.isAlternate = false;
      }
    }
    // A row that is a team has its regular members first.
    if (dialect.layout == 3) {
      for (RosterTeam& team : roster) {
        std::stable_sort(
            team.people.begin(), team.people.end(),
            [](const Person& a, const Person& b) { return a.isAlternate < b.isAlternate; });
      }
    }
    const std::string sheet = dialect.write(roster, slots);
    const RosterPlan plan = planRoster(sheet, contest);
    if (!plan.problems.empty()) continue;  // teams of the contest that are full
    ++imports;
    Contest imported = contest;
    importRoster(imported, plan);
    const Contest asTyped = typed(contest, roster);
    ASSERT_EQ(writeContest(imported), writeContest(asTyped)) << seed << "\n"
                                                             << sheet << explained(plan, contest);
    ASSERT_EQ(imported.settings, asTyped.settings) << seed;
    const RosterPlan again = planRoster(sheet, imported);
    ASSERT_TRUE(again.changesNothing && again.problems.empty()) << seed << "\n"
                                                                << explained(again, imported);
    importRoster(imported, again);
    ASSERT_EQ(writeContest(imported), writeContest(asTyped)) << seed;
  }
  EXPECT_GT(imports, 100);
}

}  // namespace

}  // namespace scorvane
