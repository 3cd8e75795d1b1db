#include "entry/lookup_dialog.h"

#include <array>

#include "tests/entry/entry_fixture.h"

namespace {

constexpr ControlId kNumber = 1026;
constexpr ControlId kLetter = 1027;
constexpr ControlId kReasons = 1028;
constexpr ControlId kQuestions = 1056;
constexpr ControlId kClasses = 1016;
constexpr ControlId kScore = 1004;
constexpr ControlId kLookup = 1005;

class Lookup : public EntryTest {
 protected:
  LookupDialog behaviour_;
  MemoryDialog dialog_{kLookupDialog, behaviour_};

  void type(const char* number, const char* letter, const char* reasons, const char* questions) {
    dialog_.paste(kNumber, number);
    dialog_.paste(kLetter, letter);
    dialog_.paste(kReasons, reasons);
    dialog_.paste(kQuestions, questions);
  }
  std::string fields() {
    return dialog_.text(kNumber) + "|" + dialog_.text(kLetter) + "|" + dialog_.text(kReasons) +
           "|" + dialog_.text(kQuestions);
  }
  std::string lastScore() {
    std::string shown;
    for (const ControlId id : {1031, 1032, 1033, 1034, 1030, 1035, 1036}) {
      shown += dialog_.text(id) + '|';
    }
    return shown;
  }
};

TEST_F(Lookup, OpensOnTheNumberWithScoresOutOfReach) {
  EXPECT_EQ(dialog_.lines(kClasses),
            (std::vector<std::string>{" 1.  Steers", " 2.  Ewes", " 3.  Gilts"}));
  EXPECT_EQ(lastScore(), "|||(-,-,-)||||");
  EXPECT_EQ(dialog_.focused(), kNumber);
  EXPECT_EQ(dialog_.defaultButton(), kScore);
  EXPECT_FALSE(dialog_.isEnabled(kReasons));
  EXPECT_FALSE(dialog_.isEnabled(kQuestions));
}

TEST_F(Lookup, TakesOnlyTheScoresThatTheClassCarries) {
  dialog_.choose(kClasses, 2);
  EXPECT_TRUE(dialog_.isEnabled(kReasons));
  EXPECT_TRUE(dialog_.isEnabled(kQuestions));
  type("101", "A", "30", "20");
  dialog_.choose(kClasses, 1);
  EXPECT_FALSE(dialog_.isEnabled(kQuestions));
  EXPECT_EQ(fields(), "101|A|30|") << "a score out of reach must not be stored";
  dialog_.choose(kClasses, 0);
  EXPECT_TRUE(dialog_.isEnabled(kQuestions));
  EXPECT_EQ(fields(), "101|A||");
}

TEST_F(Lookup, StoresWhatIsGivenAndLeavesTheRest) {
  dialog_.choose(kClasses, 2);
  contest().classes.officialLetter[2] = 'A';
  type("101", "b", "50", "0");
  dialog_.pressEnter();
  EXPECT_EQ(record(101, 2), (ScoreRecord{'B', 46, 50, 0}));
  EXPECT_EQ(lastScore(), "101|B|A|(2,3,4)|46|50|0|");
  EXPECT_EQ(fields(), "|||");
  EXPECT_EQ(dialog_.focused(), kNumber);

  type("101", "", "", "31");
  dialog_.click(kScore);
  EXPECT_EQ(record(101, 2), (ScoreRecord{'B', 46, 50, 31}));
  EXPECT_EQ(dialog_.focused(), kNumber);
  type("101", "Z", "", "");
  dialog_.pressEnter();
  EXPECT_EQ(record(101, 2), (ScoreRecord{'Z', 0, 50, 31}));
  type("103", "", "7", "");
  dialog_.pressEnter();
  EXPECT_EQ(record(103, 2), (ScoreRecord{' ', 0, 7, 0})) << "a number without a name exists";
  EXPECT_TRUE(dialog_.desktop.messages.empty());
}

TEST_F(Lookup, ShowsDashesForScoresThatTheClassDoesNotCarry) {
  contest().scores[101][0] = {'A', 50, 9, 8};
  contest().scores[101][1] = {'A', 20, 7, 6};
  const Contest before = contest();
  dialog_.choose(kClasses, 0);
  type("101", "", "", "");
  dialog_.pressEnter();
  EXPECT_EQ(lastScore(), "101|A|A|(2,3,4)|50|---|8|");
  dialog_.choose(kClasses, 1);
  dialog_.fill(kNumber, "101");
  dialog_.click(kLookup);
  EXPECT_EQ(lastScore(), "101|A|X|(5,5,5)|20|7|---|");
  dialog_.fill(kNumber, "102");
  dialog_.click(kLookup);
  EXPECT_EQ(lastScore(), "102| |X|(5,5,5)|0|0|---|");
  EXPECT_EQ(contest(), before);
}

// Each press is refused for the first thing wrong with it; the fields are what is left of them.
TEST_F(Lookup, RefusesAScoreForTheFirstThingWrong) {
  struct Case {
    std::optional<int> classLine;
    std::array<const char*, 4> typed;
    const char* message;
    const char* left;
    ControlId focused;
  };
  const char* reasons = "Reasons score must be between 0 and 50.";
  const char* questions = "Questions score must be between 0 and 50.";
  const char* letters = "too many letters entered for score.";
  const char* absent = "Contestant Number doesn't exist.";
  const Case cases[] = {
      {2, {"", "AB", "51", "51"}, reasons, "|AB||51", kReasons},
      {2, {"101", "A", "-1", ""}, reasons, "101|A||", kReasons},
      {2, {"101", "A", "99999999999999999999999", ""}, reasons, "101|A||", kReasons},
      {2, {"", "AB", "50", "51"}, questions, "|AB|50|", kQuestions},
      {2, {"", "AB", "50", "50"}, letters, "|||50", kLetter},
      {2, {"", "Y", "5", "5"}, "score must be between A and X <Y> (Z=zero).", "|||5", kLetter},
      {{}, {"", "A", "", ""}, "no class selected.", "|A||", kClasses},
      {2, {"", "A", "5", "6"}, "no member number entered.", "|A|5|6", kNumber},
      {2, {"107", "A", "5", "6"}, absent, "|||", kNumber},
      {2, {"4294967397", "A", "5", "6"}, absent, "|||", kNumber},
  };
  for (const Case& c : cases) {
    dialog_.click(kClasses);
    dialog_.select(kClasses, std::nullopt);
    if (c.classLine) dialog_.choose(kClasses, *c.classLine);
    type(c.typed[0], c.typed[1], c.typed[2], c.typed[3]);
    dialog_.click(kScore);
    EXPECT_EQ(lastMessage(dialog_), std::string("Warning: Error:  ") + c.message);
    EXPECT_EQ(fields(), c.left) << c.message;
    EXPECT_EQ(dialog_.focused(), c.focused) << c.message;
  }
  EXPECT_TRUE(contest().scores.empty());
  EXPECT_EQ(lastScore(), "|||(-,-,-)||||");
}

TEST_F(Lookup, RefusesALookupForTheNumberFirst) {
  const std::string absent = "Warning: Error:  Contestant Number doesn't exist.";
  dialog_.choose(kClasses, 2);
  type("107", "A", "5", "6");
  dialog_.select(kClasses, std::nullopt);
  dialog_.click(kLookup);
  EXPECT_EQ(lastMessage(dialog_), absent);
  EXPECT_EQ(fields(), "|||6") << "the questions score stays";
  EXPECT_EQ(dialog_.focused(), kNumber);
  dialog_.click(kLookup);
  EXPECT_EQ(lastMessage(dialog_), absent) << "an empty field reads as 0";
  contest().contestantNames[0] = "Zoe";
  dialog_.click(kLookup);
  EXPECT_EQ(lastMessage(dialog_), "Warning: Error:  A class must be selected.");
  dialog_.choose(kClasses, 2);
  dialog_.click(kLookup);
  EXPECT_EQ(dialog_.text(1031), "0");
  EXPECT_EQ(dialog_.focused(), kNumber);
}

}  // namespace
