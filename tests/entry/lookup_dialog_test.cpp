#include "entry/lookup_dialog.h"

#include <array>

#include "tests/entry/entry_fixture.h"
#include "tests/support/approved.h"
#include "tests/ui/recorded_dialog.h"

namespace {

constexpr ControlId kNumber = 1026, kLetter = 1027, kReasons = 1028, kQuestions = 1056;
constexpr ControlId kClasses = 1016, kScore = 1004, kLookup = 1005;

struct Lookup : Session<made<LookupDialog>, kLookupDialog> {
  using Session::Session;

  // Fills number, letter, reasons and questions, where they can be reached, and presses a button.
  void press(ControlId button, const std::array<const char*, 4>& typed) {
    const std::array fields = {kNumber, kLetter, kReasons, kQuestions};
    for (std::size_t i = 0; i < fields.size(); ++i) {
      if (isEnabled(fields[i])) setText(fields[i], typed[i]);
    }
    click(button);
  }
};

// A score out of reach must not be stored.
TEST(Lookup, ReachesOnlyTheScoresThatTheClassCarries) {
  Lookup dialog(contestAtEntry());
  dialog.choose(kClasses, 2);
  dialog.fill(kReasons, "30");
  dialog.fill(kQuestions, "20");
  dialog.choose(kClasses, 1);
  dialog.choose(kClasses, 0);
  expectApproved(dialog.session(), "entry/lookup_reach.txt");
}

TEST(Lookup, StoresWhatIsGivenAndShowsWhatTheClassCarries) {
  Contest contest = contestAtEntry();
  contest.classes.officialLetter[2] = 'A';
  contest.scores[101][0] = {'A', 50, 9, 8};
  contest.scores[101][1] = {'A', 20, 7, 6};
  Lookup dialog(contest);
  dialog.choose(kClasses, 2);
  dialog.press(kScore, {"101", "b", "50", "0"});
  dialog.press(kScore, {" 101\t", "", "", " 31 "});
  dialog.press(kScore, {"101", "Z", "", ""});
  dialog.press(kScore, {"103", "", "7", ""});  // a number without a name exists
  dialog.choose(kClasses, 0);
  dialog.press(kScore, {"101", "", "", ""});
  dialog.choose(kClasses, 1);
  dialog.press(kLookup, {"101", "C", "5", ""});
  dialog.keys("102");  // over the number just looked up
  dialog.click(kLookup);
  expectApproved(dialog.session(), "entry/lookup_stored.txt");
}

TEST(Lookup, RefusesForTheFirstThingWrong) {
  Lookup dialog(contestAtEntry());
  dialog.choose(kClasses, 2);
  dialog.press(kScore, {"", "AB", "51", "51"});
  dialog.press(kScore, {"101", "A", "-1", ""});
  dialog.press(kScore, {"101", "A", "99999999999999999999999", ""});
  dialog.press(kScore, {"", "AB", "50", "51"});
  dialog.press(kScore, {"", "A", "5", "6"});
  dialog.press(kScore, {"107", "A", "5", "6"});
  dialog.press(kScore, {"4294967397", "A", "5", "6"});
  dialog.select(kClasses, std::nullopt);
  dialog.press(kScore, {"", "AB", "50", "50"});
  dialog.press(kScore, {"", "Y", "5", "5"});
  dialog.press(kScore, {"", "A", "5", "6"});
  dialog.press(kLookup, {"107", "A", "5", "6"});
  currentContest().contestantNames[0] = "Zoe";  // an empty field reads as 0
  dialog.press(kLookup, {"", "A", "5", "6"});
  dialog.choose(kClasses, 2);
  dialog.press(kLookup, {"", "", "", ""});
  expectApproved(dialog.session(), "entry/lookup_refused.txt");
}

}  // namespace
