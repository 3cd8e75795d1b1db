// What the page and the sheets tell, against the reports that rank.
#include "exchange/results_page.h"

#include <gtest/gtest.h>

#include <array>
#include <regex>
#include <set>

#include "exchange/exports.h"
#include "exchange/score_sheets.h"
#include "results/award_lists.h"
#include "results/high_reports.h"
#include "results/rankings.h"
#include "results/score_cards.h"
#include "tests/exchange/markup_check.h"
#include "tests/support/contest_builder.h"
#include "text/format.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

// Few classes make many ties. One team is gone, its members stay, and somebody's name is gone.
Contest tiedContest(std::uint32_t seed) {
  ContestPlan plan;
  plan.seed = seed;
  plan.contestants = 40;
  plan.alternates = 1;
  plan.classes = 3;
  plan.reasonsClasses = plan.questionsClasses = 1;
  plan.categories = 2;
  Contest contest = makeContest(plan);
  for (auto& [number, records] : contest.scores) {
    for (auto& [k, record] : records) {
      record.reasonsScore = record.reasonsScore == 0 ? 0 : 40 + record.reasonsScore % 2;
    }
  }
  contest.teams.erase(contest.teams.begin());
  contest.contestantNames[120].clear();
  return contest;
}

std::vector<std::string> matches(const std::string& text, const char* pattern) {
  const std::regex expression(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator it(text.begin(), text.end(), expression), end; it != end; ++it) {
    found.push_back((*it)[1].matched ? (*it)[1].str() : it->str());
  }
  return found;
}

std::string tableOf(const std::string& page, const std::string& caption) {
  const std::size_t start = page.find("<h3>" + caption + "</h3></caption>");
  EXPECT_NE(start, std::string::npos) << caption;
  return page.substr(std::min(start, page.size()), page.find("</table>", start) - start);
}

// A row of the page as the report's columns, and the numbers of its words about ties.
struct Told {
  std::string line, numbers;
};
std::vector<Told> individualsOf(const std::string& table) {
  static const std::regex row(
      R"re(<tr><td>(\d+)<th scope="row">([^<]*)(.*)<td>([^<]*)<td class="s">(-?\d+)\n)re");
  std::vector<Told> told;
  for (std::sregex_iterator it(table.begin(), table.end(), row), end; it != end; ++it) {
    const auto& m = *it;
    told.push_back({formatText("%5s  %-30.30s  %-30.30s  %5s", m.str(1).c_str(), m.str(2).c_str(),
                               m.str(4).c_str(), m.str(5).c_str()),
                    m.str(3)});
  }
  return told;
}

// Every row begins as the report's line, and what a tie was won by is on the lines of both.
void expectAsReported(const std::string& page, const std::string& report,
                      const ReportRequest& request) {
  const auto lines = matches(report, R"( +\d+  .*)");
  const auto told = individualsOf(tableOf(page, awardName(request) + ": individuals"));
  ASSERT_EQ(told.size(), lines.size());
  for (std::size_t i = 0; i < told.size(); ++i) {
    EXPECT_TRUE(lines[i].starts_with(told[i].line)) << told[i].line << '\n' << lines[i];
    std::smatch won;
    if (!std::regex_search(told[i].numbers, won, std::regex(R"(won on .*, (-?\d+) to (-?\d+))"))) {
      continue;
    }
    for (std::size_t side = 0; side < 2 && i + side < told.size(); ++side) {
      const std::string values = lines[i + side].substr(told[i + side].line.size()) + " ";
      EXPECT_NE(values.find(" " + won.str(side + 1) + " "), std::string::npos) << lines[i + side];
    }
  }
}

TEST(ResultsPage, TellsTheRowsOfTheReports) {
  std::size_t ties = 0;
  for (std::uint32_t seed = 1; seed <= 20; ++seed) {
    SCOPED_TRACE(seed);
    Contest contest = tiedContest(seed);
    contest.settings.numToReport = static_cast<std::int32_t>(seed);
    const std::string page = resultsPage(contest, static_cast<PageContent>(seed % 3));
    EXPECT_EQ(markupFault(page, false), "");
    ties += matches(page, "won on").size();
    const auto requests = awardRequests(contest);
    for (const ReportRequest& request : *requests) {
      expectAsReported(page, highIndividualReport(contest, request), request);
      std::vector<std::string> expected;
      for (const TeamRow& row : teamRows(contest, request)) {
        expected.push_back(formatText("%d %s %d", row.place, row.name->c_str(), row.score));
      }
      const std::string table = std::regex_replace(
          tableOf(page, awardName(request) + ": teams"),
          std::regex("<tr><td>(\\d+)<th scope=\"row\">([^<]*).*<td class=\"s\">(-?\\d+)"),
          "row $1 $2 $3");
      EXPECT_EQ(matches(table, "row (.*)"), expected);
    }
  }
  EXPECT_GT(ties, 100U);
}

TEST(ResultsPage, NamesNobodyWithoutAnAwardUnlessAsked) {
  Contest contest = tiedContest(3);
  contest.settings.numToReport = 2;
  std::set<std::string> awarded;
  const auto requests = awardRequests(contest);
  for (const ReportRequest& request : *requests) {
    for (const IndividualRow& row : individualRows(contest, request)) awarded.insert(*row.name);
  }
  const std::string awards = resultsPage(contest, PageContent::awards);
  const std::string teams = resultsPage(contest, PageContent::teams);
  const std::string cards = resultsPage(contest, PageContent::cards);
  std::size_t unnamed = 0;
  for (const auto& [number, name] : contest.contestantNames) {
    if (name.empty()) continue;
    const bool hasAward = awarded.contains(name);
    unnamed += hasAward ? 0 : 1;
    EXPECT_EQ(awards.find(">" + name + "<") != std::string::npos, hasAward) << name;
    EXPECT_NE(cards.find("<h3>" + std::to_string(number) + " " + name + "</h3>"),
              std::string::npos);
  }
  EXPECT_GT(unnamed, 20U);
  const ScoreCards judged(contest);
  for (const auto& [name, team] : contest.teams) {
    for (const CardRow& card : judged.membersOf(team)) {
      const std::string member = formatText("<li>%s %d%s<", card.name->c_str(), card.overall,
                                            card.number == team.members[4] ? ", alternate" : "");
      EXPECT_NE(std::regex_replace(teams, std::regex("\n"), "").find(member), std::string::npos)
          << member;
      EXPECT_EQ(awards.find("<li>" + *card.name), std::string::npos);
    }
  }
  EXPECT_EQ(awards.find("<script"), std::string::npos);
  EXPECT_EQ(awards.find("<h3>"), awards.find("<h3>Overall: individuals<"));
}

TEST(ResultsPage, NamesNobodyBeforeTheFirstCard) {
  Contest contest = tiedContest(1);
  contest.classes.officialLetter[1] = kNoLetter;
  for (auto& [number, records] : contest.scores) {
    for (auto& [k, record] : records) record = {};
  }
  const std::string page = resultsPage(contest, PageContent::awards);
  EXPECT_EQ(page.find("<table"), std::string::npos);
  EXPECT_NE(page.find("<p>No scores are in yet.</p>"), std::string::npos);
  EXPECT_NE(page.find("<p>No official placing, cuts "), std::string::npos);
}

// The words of the page, its cells behind ";". Ann is an alternate of another team, too.
TEST(ResultsPage, ShowsClassesAndCardsAsEntered) {
  ContestBuilder builder;
  builder.contest.settings.contestName.clear();
  builder.members(1, 2, 1).addClass({.name = "Steers", .reasons = true, .cuts = {2, 3, 1}});
  builder.addClass({.name = "Hogs", .questions = true, .official = 'B', .cuts = {0, 13, 0}});
  builder.team("Elm", "", {"Ann", "Bob"}).team("Oak", "", {"Dee", ""}).contestant("Cy");
  builder.placings(101, "BX").placings(102, "AZ").placings(103, "AB").placings(105, "A ");
  builder.contestant("Eve");
  builder.contest.scores[101][0].reasonsScore = 44;
  builder.contest.teams["Oak"].members[1] = 101;
  const std::string page = resultsPage(builder.contest, PageContent::cards);
  EXPECT_NE(page.find("<h1>Results</h1>"), std::string::npos);
  std::string shown = page.substr(page.find("<h2>Classes"));
  shown.resize(shown.find("<script>"));
  for (const auto& [markup, sign] :
       {std::pair{"<td[^>]*>", ";"}, {"<[^>]*>|\n", "|"}, {"\\|+", "|"}}) {
    shown = std::regex_replace(shown, std::regex(markup), sign);
  }
  EXPECT_EQ(shown,
            "|Classes|1 Steers|Official 1234 (A), cuts 2 3 1|4 cards, average 49.8, 3 perfect|"
            "3 scored 50, 1 scored 45 to 49|0|5|10|15|20|25|30|35|40|45|1|50|3|"
            "2 Hogs|Official 1243 (B), cuts 0 13 0|3 cards, average 16.0, 1 perfect|"
            "1 scored 50, 2 scored -2 to 4|0|2|5|10|15|20|25|30|35|40|45|50|1|"
            "Teams|Overall: all teams|Place|Team|Members|Score|;1|Oak;|Dee 100|"
            "Ann 91, alternate|;100|;2|Elm;|Ann 91|Bob 50, alternate|;91|"
            "Score cards|Find by number, name or team|"
            "101 Ann| Elm|Overall 91, place 2 of 5, counts for the team|Class|Placing|Score|"
            "Reasons|Questions|Total|1 Steers;1243 (B);49;44;;|2 Hogs;4321 (X);-2;;;|"
            "All classes;;47;44;0;91|"
            "102 Bob| Elm|Overall 50, place 3 of 5, alternate|Class|Placing|Score|Reasons|"
            "Questions|Total|1 Steers;1234 (A);50;;;|2 Hogs;Z;0;;;|All classes;;50;0;0;50|"
            "103 Dee| Oak|Overall 100, place 1 of 5, counts for the team|Class|Placing|Score|"
            "Reasons|Questions|Total|1 Steers;1234 (A);50;;;|2 Hogs;1243 (B);50;;;|All classes;;"
            "100;0;0;100|"
            "105 Cy| |Overall 50, place 4 of 5|Class|Placing|Score|Reasons|Questions|Total|"
            "1 Steers;1234 (A);50;;;|2 Hogs;;;;;|All classes;;50;0;0;50|"
            "106 Eve| |Overall 0|Class|Placing|Score|Reasons|Questions|Total|1 Steers;;;;;|"
            "2 Hogs;;;;;|All classes;;0;0;0;0|");
  EXPECT_EQ(matches(page, "<path d=\"([^\"]*)"),
            (std::vector<std::string>{"M0 70h242v1H0zM200 70v-19h18v19zM222 70v-56h18v56z",
                                      "M0 70h242v1H0zM2 70v-56h18v56zM222 70v-28h18v28z"}));
}

TEST(ResultsPage, CannotBeBrokenByNames) {
  const std::string nasty = "<b>&\"'\x01\x81\xE9</b></title><script>alert(1)</script>";
  ContestBuilder builder;
  builder.contest.settings.contestName = builder.contest.settings.divisionName = nasty;
  builder.contest.settings.contestDate = nasty;
  builder.categories({nasty, "=1"}).addClass({.name = nasty}).addClass({.category = 1});
  builder.team(nasty, nasty, {nasty, "", nasty}).placings(101, "A<").placings(103, "Z\x81");
  const std::string page = resultsPage(builder.contest, PageContent::cards);
  EXPECT_EQ(markupFault(page, false), "");
  EXPECT_EQ(matches(page, "<script>").size(), 1U);
  EXPECT_NE(page.find("&lt;b&gt;&amp;&quot;&#39; \uFFFD\u00E9&lt;/b&gt;&lt;/title&gt;"),
            std::string::npos);
  EXPECT_EQ(workbookFault(spreadsheetBytes(builder.contest, "a.XLSX"),
                          [](const std::string&, std::string_view) {}),
            "");
}

// Everybody's place and score, which the sheet of contestants has in its last columns, and the
// scores of the teams.
TEST(ScoreSheets, TellTheRowsOfTheReports) {
  for (std::uint32_t seed = 1; seed <= 20; ++seed) {
    SCOPED_TRACE(seed);
    const Contest contest = tiedContest(seed);
    const std::vector<Table> sheets = scoreSheets(contest);
    const std::string people = csvText(sheets[0]), teams = csvText(sheets[1]);
    const auto expectRow = [](const std::string& sheet, const std::string& row) {
      EXPECT_EQ(matches(sheet, ("\\n" + row + "\\r").c_str()).size(), 1U) << row;
    };
    const auto ranked = individualRows(contest, everybodyRequest(contest, ScoreKind::overall));
    EXPECT_EQ(ranked.size(), sheets[0].rows);
    for (const IndividualRow& row : ranked) {
      expectRow(people, formatText("%d,%s,%s,.*,%d,%d", row.number, row.name->c_str(),
                                   row.team->c_str(), row.score, row.place));
    }
    for (std::size_t kind = 0; kind < kScoreKinds.size(); ++kind) {
      constexpr std::array<std::size_t, 4> kBefore = {3, 0, 1, 2};  // scores of other kinds
      for (const TeamRow& row : teamRows(contest, everybodyRequest(contest, kScoreKinds[kind]))) {
        const std::string place = kind == 0 ? std::to_string(row.place) : ".*";
        expectRow(teams, formatText("%s,%s,[^,]*(?:,[^,]*){%zu},%d,.*", place.c_str(),
                                    row.name->c_str(), kBefore.at(kind), row.score));
      }
    }
  }
}

// Ann's third card was given a zero, Bob's 7 belongs to a class without questions, and Eve has no
// record at all.
TEST(ScoreSheets, LeaveBlankWhatWasNotEntered) {
  ContestBuilder builder;
  builder.members(1, 2, 1).categories({"Beef", "Swine", "None"});
  builder.addClass({.name = "Steers", .reasons = true, .questions = true, .official = 'B'});
  builder.addClass({.name = "Hogs", .reasons = true, .category = 1}).addClass({.name = "Ewes"});
  builder.team("-Elm", "Mr. Oak", {"Ann", "Bob"}).team("Yew", "", {"", "Dee"}).contestant("Eve");
  builder.placings(101, "C Z").placings(102, "B  ").placings(104, "   ");
  builder.contest.scores[101][0].reasonsScore = 44;
  builder.contest.scores[102][1].questionsScore = 7;  // the class has none
  std::string texts;
  for (const Table& sheet : scoreSheets(builder.contest)) texts += csvText(sheet).substr(3);
  std::erase(texts, '\r');
  EXPECT_EQ(texts, R"(Number,Name,Team,Coach,Group,Alternate,)"
                   R"(1 Placing,1 Score,1 Reasons,1 Questions,2 Placing,2 Score,2 Reasons,)"
                   R"(3 Placing,3 Score,Beef Total,Swine Total,)"
                   R"(Placings,Reasons,Questions,Overall,Place
101,Ann,'-Elm,Mr. Oak,A,,C,39,44,,,,,Z,0,83,0,39,44,0,83,1
102,Bob,'-Elm,Mr. Oak,B,alt,B,50,,,,,,,,50,7,50,0,7,57,2
104,Dee,Yew,,D,alt,,,,,,,,,,0,0,0,0,0,0,3
105,Eve,,,E,,,,,,,,,,,0,0,0,0,0,0,
Place,Team,Coach,Placings,Reasons,Questions,Overall,Member 1,Member 2
1,'-Elm,Mr. Oak,39,44,0,83,Ann,Bob
2,Yew,,0,0,0,0,,Dee
Class,Name,Category,Official,Order,Cut 1,Cut 2,Cut 3,Cards,Average,Perfect
1,Steers,Beef,B,1243,2,3,4,2,44.5,1
2,Hogs,Swine,A,1234,2,3,4,0,,0
3,Ewes,Beef,A,1234,2,3,4,1,0.0,0
Number,Name,Class,Placing,Order,Score,Reasons,Questions
101,Ann,1,C,1324,39,44,
101,Ann,3,Z,,0,,
102,Bob,1,B,1243,50,,
102,Bob,2,,,,,7
)");
  builder.categories({kNoCategory});
  const std::vector<Table> sheets = scoreSheets(builder.contest);
  EXPECT_NE(csvText(sheets[0]).find(",3 Score,Placings,Reasons,"), std::string::npos);
  EXPECT_NE(csvText(sheets[2]).find("\n1,Steers,,B,"), std::string::npos);
}

}  // namespace

}  // namespace scorvane
