// What goes out when the last card is in: the announcer's list, the coaches' cards, the class
// analysis and the progress of entry.
#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "reports/entry_progress_report.h"
#include "results/announcers_list.h"
#include "results/award_lists.h"
#include "results/awards_packet.h"
#include "results/class_analysis_report.h"
#include "results/score_cards.h"
#include "results/score_cards_report.h"
#include "tests/support/approved.h"
#include "tests/support/random_contest.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

constexpr std::array kReports = {announcersList, scoreCardsReport, classAnalysisReport,
                                 entryProgressReport};

// Ties by every rule, one that none breaks, a zero card, a card with a score that the cuts do not
// make, a placing below 0, missing cards, a contestant without a team, one who did not come and an
// alternate. Class 3 has nobody's card.
Contest countyFair() {
  ContestBuilder builder;
  builder.members(2, 3, 2).categories({"Beef", "Swine"});
  builder.addClass({.name = "Angus Heifers", .reasons = true});
  builder.addClass({.name = "Duroc Boars With a Long Name",
                    .questions = true,
                    .cuts = {0, 13, 0},
                    .category = 1});
  builder.addClass({.name = "Steers", .official = 'J', .category = 1});
  builder.team("Adams", "Coach Hill", {"Ann", "Bob", "Cat"});
  builder.team("Boone", "", {"Dan", "Eve", ""}).team("Clay", "", {"", "", ""});
  builder.contestant("Fay").contestant("Gus");
  builder.placings(101, "XX").placings(102, "BC").placings(103, "AZ").placings(104, "G");
  builder.placings(105, "GC").placings(110, "BA ");
  const auto speak = [&](ContestantNumber number, std::int32_t reasons, std::int32_t questions) {
    builder.contest.scores[number][0].reasonsScore = reasons;
    builder.contest.scores[number][1].questionsScore = questions;
  };
  speak(101, 50, 0), speak(102, 40, 30), speak(103, 40, 33), speak(104, 42, 5);
  speak(105, 38, 30), speak(110, 41, 5);
  builder.contest.scores[110][1].placingScore = 40;
  return builder.contest;
}

// Of pages and cards that are alike the first is enough.
std::string shortened(std::string report) {
  for (const char* title :
       {"Swine: individuals", "Swine: teams", "Reasons: teams", "Questions: teams",
        "Overall: individuals", "Overall: teams", "Team:  Boone", "Team:  Clay"}) {
    const std::size_t page = report.find(title);
    if (page == std::string::npos) continue;
    const std::size_t rest = report.find('\n', page) + 1;
    report.erase(rest, std::min(report.find(kPageBreakLine, rest), report.size()) - rest);
  }
  static const std::regex secondCard(" 102 Bob: (.+\n)+\n");
  report = std::regex_replace(report, secondCard, "");
  return report;
}

TEST(Awards, AreAsApproved) {
  std::string reports;
  for (const auto& report : kReports) reports += shortened(report(countyFair())) + "\n=====\n\n";
  expectApproved(reports, "results/awards.txt");
}

TEST(Awards, AreReadWithPlacesInWords) {
  std::string words;
  for (const int place : {1, 2, 3, 4, 10, 11, 12, 13, 20, 21, 22, 23, 101, 111, 112, 113, 1003}) {
    words += placeInWords(place) + " ";
  }
  EXPECT_EQ(words,
            "1st 2nd 3rd 4th 10th 11th 12th 13th 20th 21st 22nd 23rd 101st 111th 112th "
            "113th 1003rd ");
}

bool hasEntered(const Contest& contest, const ReportRequest& request, ContestantNumber number) {
  const bool isOverall = request.kind == ScoreKind::overall;
  for (const std::int32_t k : request.classes) {
    const ClassScores* scores = contest.scores.find(number);
    const ScoreRecord* record = scores == nullptr ? nullptr : scores->find(k);
    if (record == nullptr) continue;
    if (isOverall && record->letter != kNoLetter) return true;
    if (request.kind != ScoreKind::questions && record->reasonsScore != 0) return true;
    if (request.kind != ScoreKind::reasons && record->questionsScore != 0) return true;
  }
  return false;
}
bool takesPart(const Contest& contest, const ReportRequest& request, const IndividualRow& row) {
  return hasEntered(contest, request, row.number);
}
bool takesPart(const Contest& contest, const ReportRequest& request, const TeamRow& row) {
  return std::any_of(row.members.begin(), row.members.end(), [&](const MemberRow& member) {
    return !member.name->empty() && hasEntered(contest, request, member.number);
  });
}

// What decides ties, by ordering and rule.
constexpr std::array<std::array<const char*, 3>, 3> kDeciders = {
    {{"reasons", "lower placings in reasons classes", ""},
     {"lower placings in ", "the overall score", ""},
     {"reasons in the category", "reasons in all classes", "the overall score"}}};

// Place, score and, where a tie was decided, the deciding values of both rows.
template <typename Row>
void expectWords(const Contest& contest, const ReportRequest& request, const std::vector<Row>& rows,
                 std::string& expected) {
  for (std::size_t i = rows.size(); i-- > 0;) {
    const Row& row = rows[i];
    if (!takesPart(contest, request, row)) continue;
    expected += placeInWords(row.place) + " " + std::to_string(row.score) + "\n";
    if (i + 1 == rows.size() || row.score != rows[i + 1].score) continue;
    std::size_t rule = 0;
    const auto& [order, own, count] = row.ties;
    const auto& next = rows[i + 1].ties.values;
    const std::size_t rules = order == TieOrder::category ? 3 : 2;
    while (rule < rules && own.at(rule) == next.at(rule)) ++rule;
    const std::string words = tieInWords(request, row);
    EXPECT_NE(words.find(rule == rules ? "no rule breaks it"
                                       : formatText(", %d to %d", own.at(rule), next.at(rule))),
              std::string::npos)
        << words;
    if (rule == rules) continue;
    const auto* decider = kDeciders.at(static_cast<std::size_t>(order)).at(rule);
    EXPECT_NE(words.find(formatText("won on %s", decider)), std::string::npos) << words;
  }
}

// The places and scores that the announcer's list says, a line each.
std::string placesAndScores(const std::string& report) {
  std::istringstream lines(report);
  std::string found;
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string place, score;
    words >> place;
    if (place.empty() || std::isdigit(static_cast<unsigned char>(place[0])) == 0) continue;
    while (words >> score) {
    }
    found += place + " " + score + "\n";
  }
  return found;
}

TEST(Awards, HaveThePlacesScoresAndTiesOfTheHighReports) {
  for (unsigned seed = 1; seed <= 200; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    Contest contest = randomContest(random);
    contest.settings.reportPercent = seed % 2 == 0;
    contest.settings.numToReport = static_cast<std::int32_t>(random() % 60);
    const auto requests = awardRequests(contest);
    ASSERT_TRUE(requests);
    std::string expected;
    for (ReportRequest request : *requests) {
      const auto listed = individualRows(contest, request);
      expectWords(contest, request, listed, expected);
      expectWords(contest, request, teamRows(contest, request), expected);
      EXPECT_EQ(request.percent, contest.settings.reportPercent);
      EXPECT_EQ(request.numToReport, contest.settings.numToReport);
      // A short list is the beginning of the whole one.
      request.numToReport = std::numeric_limits<std::int32_t>::max();
      request.percent = false;
      const auto all = individualRows(contest, request);
      for (std::size_t i = 0; i < listed.size(); ++i) {
        EXPECT_EQ(listed[i].number, all[i].number);
        EXPECT_EQ(listed[i].ties.count, all[i].ties.count);
        EXPECT_EQ(tieInWords(request, listed[i]), tieInWords(request, all[i]));
      }
    }
    const std::string list = announcersList(contest);
    EXPECT_EQ(placesAndScores(list), expected);
    EXPECT_EQ(list.find("; "), std::string::npos);

    const ScoreCards cards(contest);
    for (const IndividualRow& row :
         individualRows(contest, everybodyRequest(contest, ScoreKind::overall))) {
      EXPECT_EQ(cards.placeOf(row.number), row.place);
      const CardRow card{.number = row.number, .scores = contest.scores.find(row.number)};
      EXPECT_EQ(cards.totalsOf(card).back().total, row.score);
    }
    const auto standings = teamStandings(contest);
    for (const ScoreKind kind : kScoreKinds) {
      for (const TeamRow& row : teamRows(contest, everybodyRequest(contest, kind))) {
        const Team& team = contest.teams.at(*row.name);
        const TeamStanding standing = standings.at(&team).at(static_cast<std::size_t>(kind));
        EXPECT_EQ(std::tie(standing.place, standing.score), std::tie(row.place, row.score));
        std::int32_t counted = 0;
        for (const MemberRow& member : row.members) {
          if (member.counts && !member.name->empty()) counted += member.score;
        }
        EXPECT_EQ(counted, row.score);
        if (kind != ScoreKind::overall) continue;
        for (const CardRow& card : cards.membersOf(team)) {
          EXPECT_EQ(card.overall, cards.totalsOf(card).back().total);
          if (card.counts) counted -= card.overall;
        }
        EXPECT_EQ(counted, 0);
      }
    }
  }
}

TEST(HandOuts, SayWhatIsMissingAndNothingTwice) {
  ContestBuilder builder;
  builder.addClass({.official = kNoLetter}).contestant("Ann").placings(101, "A");
  EXPECT_NE(scoreCardsReport(builder.contest).find(" no official placing\n"), std::string::npos);
  // A category of all classes has the overall awards.
  EXPECT_EQ(announcersList(builder.categories({"Beef"}).contest).find("Beef"), std::string::npos);
  EXPECT_NE(announcersList({}).find("Nobody has a score."), std::string::npos);
}

// Names and numbers as long as they can be.
TEST(HandOuts, KeepWithinEightyColumns) {
  ContestBuilder builder;
  const std::string name(60, 'n');
  builder.members(5, 5, 3).categories({name, name + "2"});
  for (int k = 0; k < 10; ++k) {
    builder.addClass({name, true, true, 'A', {2, 8, 4}, k % 2});
  }
  builder.contest.settings.startNum = builder.contest.settings.nextContestantNum = 2147480000;
  builder.contest.settings.numGroups = 26;
  for (int t = 0; t < 201; ++t) {
    builder.team(name + std::to_string(t), name, {name, name, name, name, name});
  }
  for (const auto& entry : builder.contest.contestantNames) {
    builder.placings(entry.first, "XWVUTSRQPONMLKJIHGFEDCBA Z");
  }
  for (const auto& report : kReports) {
    std::istringstream lines(report(builder.contest));
    for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 80U) << line;
  }
}

// Cards are kept together. A page is printed on one sheet that has room for 58 lines: eleven are
// its head and foot, and the page break needs one.
TEST(HandOuts, FillPagesOfPaper) {
  Contest contest = contestOfFile("samples/state.scv");
  std::vector<std::string> texts = {scoreCardsReport(contest), classAnalysisReport(contest)};
  while (contest.classes.count() < 60) contest.classes.add("Steers", false, false, 'A', {}, 0);
  texts.push_back(scoreCardsReport(contest));
  EXPECT_NE(texts.back().find(", continued\n # Class "), std::string::npos);
  std::vector<int> pages;
  for (const std::string& text : texts) {
    std::istringstream lines(text.substr(text.find("\n\n", 20) + 2));
    pages.push_back(1);
    int onPage = 0;
    bool isHeading = false;
    for (std::string line; std::getline(lines, line); ++onPage) {
      if (line == kPageBreakLine) onPage = -1, ++pages.back();
      EXPECT_FALSE(isHeading && (line.empty() || line.starts_with("   "))) << line;
      isHeading = line.starts_with(" # Class ");
      EXPECT_LE(onPage, 45) << line;
    }
  }
  EXPECT_EQ(pages, (std::vector<int>{153, 4, 432}));
}

// Products that only damaged files ask for: of contestants and classes, of categories and
// everybody.
TEST(HandOuts, EndBeforeTheyTakeTooLong) {
  ContestBuilder builder;
  for (int k = 0; k < 20000; ++k) {
    builder.addClass({.category = k}).contestant("Ann");
    builder.contest.scores[101 + k][k] = {'A', 50, 0, 0};
  }
  builder.contest.categories.assign(20000, "Beef");
  EXPECT_NE(announcersList(builder.contest).find("too many categories"), std::string::npos);
  EXPECT_FALSE(categoryFiles(builder.contest));
  for (const auto& report : {scoreCardsReport, entryProgressReport}) {
    const std::string text = report(builder.contest);
    EXPECT_LT(text.size(), kLongestHandOut + (4U << 20U));
    EXPECT_TRUE(text.ends_with("it ends here.\n"));
  }
}

}  // namespace

}  // namespace scorvane
