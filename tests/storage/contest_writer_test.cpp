#include "storage/contest_writer.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

#include "model/new_contest.h"
#include "storage/contest_format.h"
#include "storage/contest_reader.h"
#include "tests/storage/contest_text.h"
#include "tests/support/temporary_folder.h"

namespace {

Contest read(const std::string& bytes) {
  return std::get<Contest>(readContest(bytes));
}

/// The line that begins with `start`, without its end.
std::string lineOf(const std::string& bytes, const std::string& start) {
  const std::size_t at = bytes.find("\r\n" + start) + 2;
  return bytes.substr(at, bytes.find("\r\n", at) - at);
}

TEST(ContestWriter, WritesWhatIsRead) {
  EXPECT_EQ(writeContest(read(smallFile())), smallFile());
  Contest empty = newContest();
  empty.settings.contestDate = "March 05, 2024";
  EXPECT_EQ(writeContest(empty), fileOf({"contestName:\tJudging Contest",
                                         "divisionName:\tJunior Division",
                                         "contestDate:\tMarch 05, 2024",
                                         "startNum:\t101",
                                         "numPerTeam:\t4",
                                         "numToScore:\t3",
                                         "reportPercent:\t0",
                                         "numToReport:\t20",
                                         "numGroups:\t5",
                                         "totalNumPerTeam:\t4",
                                         "numReasonsGroups:\t1",
                                         "categories:\tnone",
                                         "~~~~~Classes~~~~~",
                                         "0",
                                         "~~~~~Contestants~~~~~",
                                         "0",
                                         "~~~~~Teams~~~~~",
                                         "0",
                                         "~~~~~Scores~~~~~",
                                         "0",
                                         "0000-0000-0000-0000",
                                         "0000-0000-0000-0000"}));
}

TEST(ContestWriter, CutsTextsToTheLine) {
  const std::string tooLong(600, 'x');
  Contest contest = read(smallFile());
  contest.settings.divisionName = tooLong;
  contest.classes.className[0] = tooLong;
  contest.contestantNames[101] = tooLong;
  contest.teams.clear();
  contest.settings.totalNumPerTeam = 90;
  contest.teams[std::string(600, 'T')] = {tooLong, std::vector<ContestantNumber>(90, 1234)};
  contest.categories.assign(60, "Category!");
  const std::string bytes = writeContest(contest);
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = bytes.find("\r\n", at) + 2;
    EXPECT_LE(end - at, kMaxContestLine);
    at = end;
  }
  const auto xs = [](std::size_t count) { return std::string(count, 'x'); };
  EXPECT_EQ(lineOf(bytes, "divisionName"), "divisionName:\t" + xs(497 - 14));
  EXPECT_EQ(lineOf(bytes, "xxx"), xs(497 - 17) + "\tYes\tNo\tC\t2,5,3\t0");
  EXPECT_EQ(lineOf(bytes, "101\tx"), "101\t" + xs(497 - 8) + "\t1\t0");
  // 40 bytes of the name and 24 of the coach leave room for 86 whole numbers.
  std::string team = std::string(40, 'T').append("\t").append(xs(24));
  for (int i = 0; i < 86; ++i) team += "\t1234";
  EXPECT_EQ(lineOf(bytes, "TTT"), team);
  EXPECT_TRUE(lineOf(bytes, "categories:").ends_with("\tCategory!\tCateg"));
}

// What would read as the end of a field or a line cannot stand in a field.
TEST(ContestWriter, EndsTextsBeforeSeparators) {
  using namespace std::string_literals;
  Contest contest = read(smallFile());
  contest.contestantNames[101] = "Ann\tLee";
  contest.contestantNames[102] = "Ben\r\nOde";
  contest.classes.className[0] = "Steers\0!"s;
  contest.teams["Clover"].coach = "\tPat";
  const std::string bytes = writeContest(contest);
  EXPECT_EQ(lineOf(bytes, "101\tA"), "101\tAnn\t1\t0");
  EXPECT_EQ(lineOf(bytes, "102\tB"), "102\tBen\t-1\t-1");
  EXPECT_EQ(lineOf(bytes, "Steers"), "Steers\tYes\tNo\tC\t2,5,3\t0");
  EXPECT_EQ(lineOf(bytes, "Clover"), "Clover\t \t101\t102\t103");
}

TEST(ContestWriter, SavesTheSamplesUnchanged) {
  for (const char* name : {"county.scv", "state.scv"}) {
    const std::string bytes = contentOf(std::string(SOURCE_DIR "/samples/") + name);
    EXPECT_TRUE(bytes.ends_with("0000-0000-0000-0000\r\n")) << name;
    EXPECT_TRUE(writeContest(read(bytes)) == bytes) << name;
  }
}

/// Contests of many shapes: any byte in a name, empty slots, numbers of any size, scores for some.
class ContestMaker {
 public:
  explicit ContestMaker(unsigned seed) : random_(seed) {}

  Contest make() {
    Contest contest = newContest();
    ContestSettings& settings = contest.settings;
    settings.contestName = text() + "!";
    settings.startNum = upTo(3) == 0 ? upTo(2000000000) - 1000000000 : upTo(1000);
    settings.totalNumPerTeam = upTo(8);
    settings.numPerTeam = upTo(8);
    settings.numGroups = 1 + upTo(30);
    settings.numReasonsGroups = upTo(5);
    settings.reportPercent = upTo(1) == 1;
    for (int i = upTo(4); i > 0; --i) contest.categories.push_back(text() + "!");
    for (int i = upTo(6); i > 0; --i) {
      contest.classes.add(text(), upTo(1) == 1, upTo(1) == 1, letter(), {upTo(15), upTo(9), 3}, 0);
    }
    for (int i = upTo(9); i > 0; --i) addTeam(contest);
    placeSome(contest);
    return contest;
  }

 private:
  int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }
  char letter() { return " ABCDEFGHIJKLMNOPQRSTUVWXZ"[upTo(25)]; }

  std::string text() {
    std::string text;
    for (int i = upTo(40) * (upTo(20) == 0 ? 20 : 1); i > 0; --i) {
      const char character = static_cast<char>(1 + upTo(254));
      if (character != '\t' && character != '\r') text += character;
    }
    return upTo(5) == 0 ? "" : text;
  }

  void addTeam(Contest& contest) {
    // One team may be without a name.
    Team& team = contest.teams[contest.teams.contains("") ? std::to_string(next_) + text() : ""];
    team.coach = text();
    for (int slot = 0; slot < contest.settings.totalNumPerTeam; ++slot) {
      const ContestantNumber number = contest.settings.startNum + next_++;
      team.members.push_back(number);
      contest.contestantNames[number] = text();
      for (int k = 0; k < contest.classes.count() && upTo(4) > 0; ++k) {
        contest.scores[number][k] = {letter(), 50 - upTo(60), upTo(50), upTo(50)};
      }
    }
  }

  void placeSome(Contest& contest) {
    std::map<int, int> rows;
    for (const auto& [number, name] : contest.contestantNames) {
      if (name.empty() || contest.settings.numReasonsGroups == 0 || upTo(3) == 0) continue;
      const int group = upTo(contest.settings.numReasonsGroups - 1);
      contest.reasonsPlace[number] = {group, rows[group]++};
    }
  }

  std::mt19937 random_;
  int next_ = 0;
};

TEST(ContestWriter, SavesWhatItLoadedUnchanged) {
  for (unsigned seed = 1; seed <= 500; ++seed) {
    SCOPED_TRACE(seed);
    const Contest made = ContestMaker(seed).make();
    const std::string saved = writeContest(made);
    const Contest loaded = read(saved);
    ASSERT_TRUE(writeContest(loaded) == saved);
    ASSERT_TRUE(read(writeContest(loaded)) == loaded);
    EXPECT_EQ(loaded.teams.size(), made.teams.size());
    for (const auto& [number, name] : made.contestantNames) {
      ASSERT_EQ(contestantName(loaded, number),
                name.substr(0, contestantName(loaded, number).size()));
      for (int k = 0; k < made.classes.count(); ++k) {
        ASSERT_EQ(scoreRecord(loaded, number, k), scoreRecord(made, number, k));
      }
    }
  }
}

}  // namespace
