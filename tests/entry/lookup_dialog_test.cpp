#include "entry/lookup_dialog.h"

#include <array>

#include "tests/entry/entry_fixture.h"

namespace {

constexpr ControlId kNumber = 1026, kLetter = 1027, kReasons = 1028, kQuestions = 1056;
constexpr ControlId kClasses = 1016, kScore = 1004, kLookup = 1005;
constexpr const char* kAbsent = "Warning: Error:  Contestant Number doesn't exist.";

class Lookup : public EntryTest {
 protected:
  LookupDialog behaviour_;
  MemoryDialog dialog_{kLookupDialog, behaviour_};

  // Fills number, letter, reasons and questions, where they can be reached, and presses a button;
  // gives what is shown as the last score.
  std::string press(ControlId button, const std::array<const char*, 4>& typed) {
    const std::array fields = {kNumber, kLetter, kReasons, kQuestions};
    for (std::size_t i = 0; i < fields.size(); ++i) dialog_.paste(fields[i], typed[i]);
    dialog_.click(button);
    return lastScore();
  }
  std::string fields() { return textsOf(dialog_, {kNumber, kLetter, kReasons, kQuestions}); }
  std::string lastScore() { return textsOf(dialog_, {1031, 1032, 1033, 1034, 1030, 1035, 1036}); }
};

TEST_F(Lookup, ReachesOnlyTheScoresThatTheClassCarries) {
  EXPECT_EQ(dialog_.lines(kClasses),
            (std::vector<std::string>{" 1.  Steers", " 2.  Ewes", " 3.  Gilts"}));
  EXPECT_EQ(lastScore(), "|||(-,-,-)||||");
  EXPECT_EQ(dialog_.focused(), kNumber);
  EXPECT_FALSE(dialog_.isEnabled(kReasons) || dialog_.isEnabled(kQuestions));
  dialog_.choose(kClasses, 2);
  dialog_.fill(kReasons, "30");
  dialog_.fill(kQuestions, "20");
  dialog_.choose(kClasses, 1);
  EXPECT_FALSE(dialog_.isEnabled(kQuestions));
  EXPECT_EQ(fields(), "||30||") << "a score out of reach must not be stored";
  dialog_.choose(kClasses, 0);
  EXPECT_TRUE(dialog_.isEnabled(kQuestions));
  EXPECT_EQ(fields(), "||||");
}

TEST_F(Lookup, StoresWhatIsGivenAndLeavesTheRest) {
  contest().classes.officialLetter[2] = 'A';
  dialog_.choose(kClasses, 2);
  EXPECT_EQ(press(kScore, {"101", "b", "50", "0"}), "101|B|A|(2,3,4)|46|50|0|");
  EXPECT_EQ(fields(), "||||");
  EXPECT_EQ(dialog_.focused(), kNumber);
  press(kScore, {"101", "", "", "31"});
  EXPECT_EQ(record(101, 2), (ScoreRecord{'B', 46, 50, 31}));
  press(kScore, {"101", "Z", "", ""});
  EXPECT_EQ(record(101, 2), (ScoreRecord{'Z', 0, 50, 31}));
  press(kScore, {"103", "", "7", ""});
  EXPECT_EQ(record(103, 2), (ScoreRecord{' ', 0, 7, 0})) << "a number without a name exists";
  EXPECT_TRUE(dialog_.desktop.messages.empty());
}

TEST_F(Lookup, ShowsDashesForScoresThatTheClassDoesNotCarry) {
  contest().scores[101][0] = {'A', 50, 9, 8};
  contest().scores[101][1] = {'A', 20, 7, 6};
  const Contest before = contest();
  dialog_.choose(kClasses, 0);
  EXPECT_EQ(press(kScore, {"101", "", "", ""}), "101|A|A|(2,3,4)|50|---|8|");
  dialog_.choose(kClasses, 1);
  EXPECT_EQ(press(kLookup, {"101", "C", "5", ""}), "101|A|X|(5,5,5)|20|7|---|");
  EXPECT_EQ(fields(), "101||||");
  dialog_.keys("102");  // over the number just looked up
  dialog_.click(kLookup);
  EXPECT_EQ(lastScore(), "102| |X|(5,5,5)|0|0|---|");
  EXPECT_EQ(contest(), before);
}

// Each press is refused for the first thing wrong with it; the fields are what is left of them.
TEST_F(Lookup, RefusesAScoreForTheFirstThingWrong) {
  struct Case {
    std::array<const char*, 4> typed;
    std::string message;
    const char* left;
    ControlId focused;
    bool classChosen = true;
  };
  const std::string error = "Warning: Error:  ";
  const std::string reasons = error + "Reasons score must be between 0 and 50.";
  const std::string questions = error + "Questions score must be between 0 and 50.";
  const Case cases[] = {
      {{"", "AB", "51", "51"}, reasons, "|AB||51|", kReasons},
      {{"101", "A", "-1", ""}, reasons, "101|A|||", kReasons},
      {{"101", "A", "99999999999999999999999", ""}, reasons, "101|A|||", kReasons},
      {{"", "AB", "50", "51"}, questions, "|AB|50||", kQuestions},
      {{"", "AB", "50", "50"}, error + "too many letters entered for score.", "|||50|", kLetter},
      {{"", "Y", "5", "5"},
       error + "score must be between A and X <Y> (Z=zero).",
       "|||5|",
       kLetter},
      {{"", "A", "", ""}, error + "no class selected.", "|A|||", kClasses, false},
      {{"", "A", "5", "6"}, error + "no member number entered.", "|A|5|6|", kNumber},
      {{"107", "A", "5", "6"}, kAbsent, "||||", kNumber},
      {{"4294967397", "A", "5", "6"}, kAbsent, "||||", kNumber},
  };
  for (const Case& c : cases) {
    dialog_.choose(kClasses, 2);
    if (!c.classChosen) dialog_.select(kClasses, std::nullopt);
    press(kScore, c.typed);
    EXPECT_EQ(lastMessage(dialog_), c.message);
    EXPECT_EQ(fields(), c.left) << c.message;
    EXPECT_EQ(dialog_.focused(), c.focused) << c.message;
  }
  EXPECT_TRUE(contest().scores.empty());
}

TEST_F(Lookup, RefusesALookupForTheNumberFirst) {
  dialog_.choose(kClasses, 2);
  dialog_.fill(kQuestions, "6");
  dialog_.select(kClasses, std::nullopt);
  press(kLookup, {"107", "A", "5", "6"});
  EXPECT_EQ(lastMessage(dialog_), kAbsent);
  EXPECT_EQ(fields(), "|||6|") << "the questions score stays";
  EXPECT_EQ(dialog_.focused(), kNumber);
  contest().contestantNames[0] = "Zoe";
  press(kLookup, {"", "", "", ""});
  EXPECT_EQ(lastMessage(dialog_), "Warning: Error:  A class must be selected.")
      << "an empty field reads as 0";
  dialog_.choose(kClasses, 2);
  EXPECT_EQ(press(kLookup, {"", "", "", ""}), "0| | |(2,3,4)|0|0|0|");
}

}  // namespace
