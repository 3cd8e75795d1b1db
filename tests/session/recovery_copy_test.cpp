#include "session/recovery_copy.h"

#include <gtest/gtest.h>

#include "storage/contest_reader.h"
#include "storage/contest_writer.h"
#include "tests/storage/contest_text.h"

namespace scorvane {

namespace {

// All of a damaged copy but the lines that are hit.
TEST(RecoveryCopyBytes, GiveEveryWholeLineWhereverTheyAreDamagedOrCut) {
  const std::string base = smallFile();
  const TypedScore typed[] = {{{101, 0, {'A', 40, 44, 0}}, {}}, {{103, 1, {'B', -7, 0, 9}}, {}}};
  std::string bytes = base + originLine({"a\tb.scv", true, 5, 6, 7}, base);
  const std::size_t added = bytes.size();
  for (const TypedScore& score : typed) bytes += typedScoreLine(score);
  const std::size_t second = added + typedScoreLine(typed[0]).size();
  const RecoveryCopy whole = readRecoveryCopy(bytes);
  EXPECT_TRUE(whole.baseIsWhole);
  EXPECT_TRUE(whole.grewFrom->isSameFile({"", true, 5, 6, 7}));
  EXPECT_EQ(whole.grewFrom->path, "a\tb.scv");
  const Contest file = *recoveredContest(readRecoveryCopy(base));
  // Another number in a line of the base leaves all counts right.
  const std::string renumbered = replaced(bytes, "103\t0\t", "102\t0\t");
  EXPECT_EQ(scoreRecord(*recoveredContest(readRecoveryCopy(renumbered)), 102, 0).letter, 'X');
  // Of which classes the typed scores are is not known without the base's.
  EXPECT_FALSE(recoveredOver(file, readRecoveryCopy("?\r\n" + bytes.substr(base.size()))));

  for (std::size_t at = 0; at < bytes.size(); ++at) {
    SCOPED_TRACE(at);
    for (const char wrong : {'\0', '5', '\n'}) {
      std::string damaged = bytes;
      if (damaged[at] == wrong) continue;
      damaged[at] = wrong;
      const RecoveryCopy copy = readRecoveryCopy(damaged);
      const bool hit[] = {at >= added && at < second, at >= second};
      ASSERT_GE(copy.typed.size(), 2U - hit[0] - hit[1]);
      ASSERT_EQ(copy.baseIsWhole, at >= base.size() && copy.grewFrom);
      const auto alone = recoveredContest(copy);
      ASSERT_LE(alone ? alone->teams.size() : 0U, 1U) << "scores are no teams";
      // Added to the file they are there, whatever became of the rest; else the rest is told apart.
      const auto contest = recoveredOver(file, copy);
      ASSERT_TRUE(!contest || at < base.find("Market") || at >= base.find("\tYes"));
      if (!contest) continue;
      for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(hit[i] ||
                    scoreRecord(*contest, typed[i].number, typed[i].classIndex) == typed[i].record);
      }
      ASSERT_EQ(contest->contestantNames.size(), 3U);
    }
    // Cut there, every line before is in the contest that is left.
    const std::string cut = bytes.substr(0, at);
    const auto contest = recoveredContest(readRecoveryCopy(cut));
    const std::string left = contest ? writeContest(*contest) : "";
    for (std::size_t line = 0, end = 0; (end = cut.find("\r\n", line)) < base.size();
         line = end + 2) {
      const std::string text = cut.substr(line, end - line);
      const bool isPlace = text.starts_with("101\tAnn");  // its row is counted by the teams
      if (text.find('\t') == std::string::npos || at >= second) continue;
      if (at >= added && text.starts_with("101\t0")) continue;
      ASSERT_NE(left.find(isPlace ? "101\tAnn Lee" : text), std::string::npos) << text;
    }
  }
}

// A letter that was typed leaves the reasons score alone that another copy of the program saved.
TEST(RecoveryCopyBytes, GiveBackWhatWasTypedAndNotTheRestOfTheRecord) {
  Contest contest = std::get<Contest>(readContest(smallFile()));
  contest.scores[101][0] = {' ', 0, 33, 0};
  const std::string base = writeContest(contest);
  TypedScore typed{{101, 0, {'A', 40, 0, 0}}, {}};
  typed.fields.letter = true;
  const std::string bytes =
      base + originLine({"a.scv", true, 5, 6, 7}, base) + typedScoreLine(typed);
  const auto recovered = recoveredContest(readRecoveryCopy(bytes));
  ASSERT_TRUE(recovered);
  EXPECT_EQ(scoreRecord(*recovered, 101, 0), (ScoreRecord{'A', 40, 33, 0}));
}

}  // namespace

}  // namespace scorvane
