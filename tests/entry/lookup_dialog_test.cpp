#include "entry/lookup_dialog.h"

#include <array>

#include "tests/entry/entry_fixture.h"

namespace {

constexpr ControlId kNumber = 1026, kLetter = 1027, kReasons = 1028, kQuestions = 1056;
constexpr ControlId kClasses = 1016, kScore = 1004, kLookup = 1005;

class Lookup : public EntryTest {
 protected:
  LookupDialog behaviour_;
  MemoryDialog dialog_{kLookupDialog, behaviour_};

  // Fills number, letter, reasons and questions, where they can be reached, and presses a button;
  // gives the message or else the last score, what is left in the fields, and the focus.
  std::string press(ControlId button, const std::array<const char*, 4>& typed) {
    const std::array fields = {kNumber, kLetter, kReasons, kQuestions};
    for (std::size_t i = 0; i < fields.size(); ++i) dialog_.paste(fields[i], typed[i]);
    dialog_.desktop.messages.clear();
    dialog_.click(button);
    const std::string message = lastMessage(dialog_);
    return (message.empty() ? lastScore() : message + " ") + fieldsAndFocus();
  }
  std::string fieldsAndFocus() {
    return textsOf(dialog_, {kNumber, kLetter, kReasons, kQuestions}) +
           std::to_string(dialog_.focused());
  }
  std::string lastScore() {
    return textsOf(dialog_, {1031, 1032, 1033, 1034, 1030, 1035, 1036}) + ' ';
  }
};

TEST_F(Lookup, ReachesOnlyTheScoresThatTheClassCarries) {
  EXPECT_EQ(dialog_.lines(kClasses),
            (std::vector<std::string>{" 1.  Steers", " 2.  Ewes", " 3.  Gilts"}));
  EXPECT_EQ(lastScore() + fieldsAndFocus(), "|||(-,-,-)|||| ||||1026");
  EXPECT_FALSE(dialog_.isEnabled(kReasons) || dialog_.isEnabled(kQuestions));
  dialog_.choose(kClasses, 2);
  dialog_.fill(kReasons, "30");
  dialog_.fill(kQuestions, "20");
  dialog_.choose(kClasses, 1);
  EXPECT_TRUE(dialog_.isEnabled(kReasons) && !dialog_.isEnabled(kQuestions));
  EXPECT_EQ(fieldsAndFocus(), "||30||1016") << "a score out of reach must not be stored";
  dialog_.choose(kClasses, 0);
  EXPECT_TRUE(!dialog_.isEnabled(kReasons) && dialog_.isEnabled(kQuestions));
  EXPECT_EQ(fieldsAndFocus(), "||||1016");
}

TEST_F(Lookup, StoresWhatIsGivenAndLeavesTheRest) {
  contest().classes.officialLetter[2] = 'A';
  dialog_.choose(kClasses, 2);
  EXPECT_EQ(press(kScore, {"101", "b", "50", "0"}), "101|B|A|(2,3,4)|46|50|0| ||||1026");
  EXPECT_EQ(press(kScore, {" 101\t", "", "", " 31 "}), "101|B|A|(2,3,4)|46|50|31| ||||1026");
  EXPECT_EQ(press(kScore, {"101", "Z", "", ""}), "101|Z|A|(2,3,4)|0|50|31| ||||1026");
  EXPECT_EQ(record(101, 2), (ScoreRecord{'Z', 0, 50, 31}));
  press(kScore, {"103", "", "7", ""});
  EXPECT_EQ(record(103, 2), (ScoreRecord{' ', 0, 7, 0})) << "a number without a name exists";
}

TEST_F(Lookup, ShowsDashesForScoresThatTheClassDoesNotCarry) {
  contest().scores[101][0] = {'A', 50, 9, 8};
  contest().scores[101][1] = {'A', 20, 7, 6};
  const Contest before = contest();
  dialog_.choose(kClasses, 0);
  EXPECT_EQ(press(kScore, {"101", "", "", ""}), "101|A|A|(2,3,4)|50|---|8| ||||1026");
  dialog_.choose(kClasses, 1);
  EXPECT_EQ(press(kLookup, {"101", "C", "5", ""}), "101|A|X|(5,5,5)|20|7|---| 101||||1026");
  dialog_.keys("102");  // over the number just looked up
  dialog_.click(kLookup);
  EXPECT_EQ(lastScore(), "102| |X|(5,5,5)|0|0|---| ");
  EXPECT_EQ(contest(), before);
}

TEST_F(Lookup, RefusesAScoreForTheFirstThingWrong) {
  const std::string error = "Warning: Error:  ";
  const std::string reasons = error + "Reasons score must be between 0 and 50. ";
  const std::string questions = error + "Questions score must be between 0 and 50. ";
  const std::string letters = error + "too many letters entered for score. ";
  const std::string letter = error + "score must be between A and X <Y> (Z=zero). ";
  const std::string absent = error + "Contestant Number doesn't exist. ";
  const char* huge = "99999999999999999999999";
  dialog_.choose(kClasses, 2);
  EXPECT_EQ(press(kScore, {"", "AB", "51", "51"}), reasons + "|AB||51|1028");
  EXPECT_EQ(press(kScore, {"101", "A", "-1", ""}), reasons + "101|A|||1028");
  EXPECT_EQ(press(kScore, {"101", "A", huge, ""}), reasons + "101|A|||1028");
  EXPECT_EQ(press(kScore, {"", "AB", "50", "51"}), questions + "|AB|50||1056");
  dialog_.select(kClasses, std::nullopt);
  EXPECT_EQ(press(kScore, {"", "AB", "50", "50"}), letters + "|||50|1027");
  EXPECT_EQ(press(kScore, {"", "Y", "5", "5"}), letter + "|||5|1027");
  EXPECT_EQ(press(kScore, {"", "A", "5", "6"}), error + "no class selected. |A|5|6|1016");
  dialog_.choose(kClasses, 2);
  EXPECT_EQ(press(kScore, {"", "A", "5", "6"}), error + "no member number entered. |A|5|6|1026");
  EXPECT_EQ(press(kScore, {"107", "A", "5", "6"}), absent + "||||1026");
  EXPECT_EQ(press(kScore, {"4294967397", "A", "5", "6"}), absent + "||||1026");
  EXPECT_TRUE(contest().scores.empty());
}

TEST_F(Lookup, RefusesALookupForTheNumberFirst) {
  const std::string error = "Warning: Error:  ";
  dialog_.choose(kClasses, 2);
  dialog_.select(kClasses, std::nullopt);
  EXPECT_EQ(press(kLookup, {"107", "A", "5", "6"}),
            error + "Contestant Number doesn't exist. |||6|1026");
  contest().contestantNames[0] = "Zoe";  // an empty field reads as 0
  EXPECT_EQ(press(kLookup, {"", "A", "5", "6"}), error + "A class must be selected. |||6|1016");
  dialog_.choose(kClasses, 2);
  EXPECT_EQ(press(kLookup, {"", "", "", ""}), "0| | |(2,3,4)|0|0|0| ||||1026");
}

}  // namespace
