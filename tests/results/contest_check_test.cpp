// What the check before the awards finds, and the packet that is printed then.
#include "results/contest_check.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

#include "model/reasons_places.h"
#include "results/award_lists.h"
#include "results/awards_packet.h"
#include "results/high_reports.h"
#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

using Random = std::mt19937;
constexpr const char* kLongName = "Cottonwood County 4-H Club";

int below(Random& random, int end) {
  return static_cast<int>(random() % static_cast<unsigned>(end));
}

// Every card is in, most of them as the officials placed. Of four members and an alternate three
// count; the last alternate did not come. Reasons of a team are near each other and no two speakers
// have the same, so that neither contestants nor teams tie.
Contest nothingMissing(Random& random) {
  ContestBuilder builder;
  builder.members(4, 5, 3).categories({"Beef", "Swine"});
  builder.addClass({.reasons = true}).addClass({.questions = true, .category = 1});
  for (int k = below(random, 3); k >= 0; --k) builder.addClass({});
  Contest& contest = builder.contest;
  for (PlacingLetter& official : contest.classes.officialLetter) {
    official = static_cast<char>('A' + below(random, 24));
  }
  const int teams = 3 + below(random, 5);
  for (int t = 0; t < teams; ++t) {
    builder.team("Team " + std::to_string(t), "",
                 {"Ann", "Bob", "Cat", "Dan", t + 1 < teams ? "" : "Eve"});
  }
  resetReasonsOrder(contest, reasonsRows(contest));
  std::int32_t row = 0;
  for (const auto& [number, name] : contest.contestantNames) {
    if (name.empty()) continue;
    ++row;
    if (name != "Eve") setReasonsPlace(contest, number, {0, row - 1});
    for (std::int32_t k = 0; k < contest.classes.count() && name != "Eve"; ++k) {
      const bool asOfficials = (row + k) % 5 < 3;
      contest.scores[number][k] = {
          asOfficials ? contest.classes.official(k) : static_cast<char>('A' + below(random, 24)), 0,
          k == 0 ? row : 0, k == 1 ? 1 + below(random, 50) : 0};
    }
  }
  recomputeAllPlacingScores(contest);
  contest.settings.numToReport = 100;
  return contest;
}

struct Fault {
  const char* heading;
  const char* line;
  void (*plant)(Contest& contest);
};

// The first two teams placed all classes as the officials and differ by their reasons alone.
void scoreTeams(Contest& c, const std::array<std::int32_t, 8>& reasons) {
  for (auto& [k, record] : c.scores[101]) record.letter = c.classes.official(k);
  c.scores[101][1].questionsScore = 50;
  for (std::size_t i = 0; i < reasons.size(); ++i) {
    const auto number = static_cast<ContestantNumber>(101 + i + i / 4);
    c.scores[number] = c.scores[101];
    c.scores[number][0].reasonsScore = reasons.at(i);
  }
}

constexpr Fault kFaults[] = {
    {"Missing scores, by class and group", " 2 Angus Heifers      placings  group C  1 of ",
     [](Contest& c) { c.scores[103][1].letter = ' ', c.scores[103][1].placingScore = 0; }},
    {"Missing scores, by class and group", " 1 Angus Heifers      reasons   group C  1 of ",
     [](Contest& c) { c.scores[103][0].reasonsScore = 0; }},
    {"Missing scores, by class and group", " 2 Angus Heifers      questions group B  1 of ",
     [](Contest& c) { c.scores[102][1].questionsScore = 0; }},
    {"Missing scores, by class and group", ": all of them\n",
     [](Contest& c) {
       for (auto& [number, records] : c.scores) {
         if (number % 5 == 2) records[2].letter = ' ', records[2].placingScore = 0;
       }
     }},
    {"Official placings or cuts that were never set", " 2 Angus Heifers: R with cuts 0-0-0",
     [](Contest& c) {
       c.classes.officialLetter[1] = 'R';
       c.classes.cut1[1] = c.classes.cut2[1] = c.classes.cut3[1] = 0;
     }},
    {"Official placings or cuts that were never set", " 1 Angus Heifers: no letter from A to X",
     [](Contest& c) { c.classes.officialLetter[0] = ' '; }},
    {"Official placings that the cards contradict", " 3 Angus Heifers: ",
     [](Contest& c) {
       char& official = c.classes.officialLetter[2];
       official = static_cast<char>('A' + 'X' - official);
     }},
    {"Contestants without a place in the reasons order", "102 Bob, Team 0",
     [](Contest& c) { leaveReasonsOrder(c, 102); }},
    {"Teams with fewer named regular members than the 3 that count", "Team 1: 2",
     [](Contest& c) {
       for (const ContestantNumber number : {106, 107}) {
         c.contestantNames[number].clear();
         c.scores[number] = {};
       }
     }},
    {"Numbers that teams have more than once", "103 Cal: Team 0, Team 2",
     [](Contest& c) {
       c.teams["Team 2"].members[4] = 103;
       c.contestantNames[103] = "Cal";
     }},
    {"Contestants of the same name in one team", "Team 1: 106 Ann, 109 Ann",
     [](Contest& c) { c.contestantNames[109] = "Ann "; }},
    {"Teams whose names read the same in the award lists",
     "Cottonwood County 4-H Club, Cottonwood County 4-H Club Two",
     [](Contest& c) {
       c.teams[kLongName].members.swap(c.teams["Team 0"].members);
       c.teams[std::string(kLongName) + " Two"].members.swap(c.teams["Team 1"].members);
       c.teams.erase("Team 0"), c.teams.erase("Team 1");
     }},
    {"Scores under numbers without a name", "105, Team 0: 2",
     [](Contest& c) {
       c.scores[105][0] = {'B', 0, 50, 0};
     }},
    {"Scores for classes that do not exist", "class 8: 1",
     [](Contest& c) {
       c.scores[102][7] = {'B', 50, 0, 0};
     }},
    {"Ties that no rule breaks, down to the last place in the list and the next one", "103 Cat",
     [](Contest& c) { c.scores[104] = c.scores[103]; }},
    // The tie is that of the last contestant listed with the next one.
    {"Ties that no rule breaks, down to the last place in the list and the next one",
     "Individual, 1st and 2nd: ",
     [](Contest& c) {
       scoreTeams(c, {50, 49, 1, 2, 48, 50, 3, 4});
       c.settings.numToReport = 1;
     }},
    {"Ties that no rule breaks, down to the last place in the list and the next one", "Team, ",
     [](Contest& c) {
       scoreTeams(c, {50, 45, 42, 1, 49, 47, 41, 2});
     }},
};

// Whatever else is right: one thing, under its heading, and behind it who did not come.
TEST(ContestCheck, FindsOnePlantedFaultAndNothingElse) {
  for (unsigned seed = 0; seed < 1000; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Random random(seed);
    Contest contest = nothingMissing(random);
    const std::string noShow = "\nNothing entered in any class, probably not here: 1\n  " +
                               std::to_string(contest.settings.nextContestantNum - 1) + " Eve\n";
    ASSERT_EQ(contestCheckReport(contest), "Nothing is missing.\n" + noShow);
    const auto& [heading, line, plant] = kFaults[seed % std::size(kFaults)];
    plant(contest);
    recomputeAllPlacingScores(contest);
    const std::string report = contestCheckReport(contest);
    const std::string opening =
        std::string("1 thing to look at before the awards.\n\n") + heading + "\n  ";
    ASSERT_TRUE(report.starts_with(opening) && report.ends_with(noShow)) << report;
    const std::string thing =
        report.substr(opening.size(), report.size() - opening.size() - noShow.size());
    EXPECT_NE(thing.find(line), std::string::npos) << report;
    EXPECT_EQ(thing.find('\n'), thing.size() - 1) << report;
  }
}

TEST(ContestCheck, FindsNothingInTheSamples) {
  for (const char* sample : {"samples/county.scv", "samples/state.scv"}) {
    EXPECT_EQ(contestCheckReport(contestOfFile(sample)), "Nothing is missing.\n");
  }
}

TEST(ContestCheck, IsAsApproved) {
  Random random(1);
  const Contest clean = nothingMissing(random);
  Contest rich = clean;
  for (auto fault = std::rbegin(kFaults); fault != std::rend(kFaults); ++fault) fault->plant(rich);
  rich.settings.numToReport = 8;
  for (const ContestantNumber number : {107, 112, 113}) rich.scores[number][1].questionsScore = 0;
  const std::string report = contestCheckReport(rich);
  EXPECT_TRUE(tellsOfThings(report));
  std::size_t before = 0;
  for (const Fault& fault : kFaults) {
    const std::size_t at = report.find(std::string("\n\n") + fault.heading + "\n");
    if (at == std::string::npos) continue;  // another fault hides it
    EXPECT_GE(at, before) << fault.heading;
    before = at;
  }
  ContestBuilder empty;
  expectApproved(report.substr(0, report.find("\nContestants without")) + "=====\n" +
                     contestCheckReport(empty.team("Elm", "", {"Ann"}).contest),
                 "results/contest_check.txt");
}

// The High reports that apply and the category reports, with the very bytes they have alone.
TEST(AwardsPacket, IsTheReportsOnPagesOfTheirOwn) {
  for (const bool speaks : {true, false}) {
    Random random(7);
    Contest contest = nothingMissing(random);
    contest.classes.reasonsFlag[0] = contest.classes.questionsFlag[1] = speaks;
    std::string expected = "Awards Packet\n\nEach list begins on a page of its own.\n\n";
    const std::string page = std::string(kPageBreakLine) + "\n";
    for (const auto& report : {highIndividualReport, highTeamReport}) {
      for (const ScoreKind kind : kScoreKinds) {
        if (!speaks && (kind == ScoreKind::reasons || kind == ScoreKind::questions)) continue;
        expected += report(contest, wholeContestRequest(contest, kind)) + page;
      }
    }
    for (std::int32_t category : {0, 1}) {
      ReportRequest request = wholeContestRequest(contest, ScoreKind::overall);
      std::erase_if(request.classes,
                    [&](auto k) { return contest.classes.category(k) != category; });
      request.title = contest.categories[static_cast<std::size_t>(category)];
      for (request.team = false;; request.team = true) {
        expected += customReport(contest, request) + page;
        if (request.team) break;
      }
    }
    expected.erase(expected.size() - page.size());
    EXPECT_EQ(awardsPacket(contest), expected);
    contest.categories[0] = "Beef: <All>/\\";
    EXPECT_EQ(categoryFiles(contest).value()[1].name, "Category 1 - Beef- -All--- - Teams");
  }
}

// What the lines say changes is what differs in the reports.
TEST(AwardsPacket, TellsWhichPlacesOfItChanged) {
  Random random(3);
  const Contest before = nothingMissing(random);
  EXPECT_EQ(changedLists(before, before).find("place "), std::string::npos);
  Contest now = before;
  now.settings.numToScore = 2;
  now.classes.questionsFlag[1] = false;
  const auto lineOf = [&](const std::string& list) {
    const std::string changes = changedLists(now, before);
    const std::size_t start = changes.find("\n" + list + " ") + 34;
    return changes.substr(start, changes.find('\n', start) - start);
  };
  EXPECT_EQ(lineOf("High Individual Reasons"), "unchanged");
  EXPECT_EQ(lineOf("High Individual Questions"), "no longer given");
  EXPECT_EQ(lineOf("High Team Beef").substr(0, 5), "place");
  now = before;
  now.contestantNames[102] = now.contestantNames[103] = "Bo";
  EXPECT_TRUE(
      changedLists(now, before).starts_with("Places that changed in the awards lists:\n\n"));
  const std::string report =
      highIndividualReport(now, wholeContestRequest(now, ScoreKind::reasons));
  const auto placeAt = [&report](std::size_t bo) {
    const std::size_t start = report.find_last_of(" \n", bo - 1) + 1;
    return report.substr(start, bo - start);
  };
  EXPECT_EQ(lineOf("High Individual Reasons"),
            "places " + placeAt(report.find("  Bo ")) + " to " + placeAt(report.rfind("  Bo ")));
  now.contestantNames[103] = "Cat";
  EXPECT_EQ(lineOf("High Individual Reasons"), "place " + placeAt(report.rfind("  Bo ")));
}

}  // namespace

}  // namespace scorvane
