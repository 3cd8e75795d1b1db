// What the sessions beside this file speak of: the entry dialogs, and a contest amid score entry;
// and when closing the dialogs saves, in which they differ.
#include "entry/group_entry_dialog.h"
#include "entry/lookup_dialog.h"
#include "entry/move_cards_dialog.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "tests/support/contest_builder.h"
#include "tests/support/temporary_folder.h"
#include "tests/ui/memory_dialog.h"
#include "tests/ui/session.h"

namespace scorvane {

namespace {

/// Groups A (101, 105) and B (102, 106), with nobody behind 103 and 104, and C without anybody.
/// Of three classes the first and third have questions, the second and third reasons. Reasons
/// groups: 105, 101, a hole, 102; a hole, 106; two holes, 102.
Contest emptyCards() {
  ContestBuilder builder;
  builder.contest.settings.numGroups = 2;
  builder.contest.groupLetters = {'A', 'B', 'C'};
  builder.addClass({.name = "Steers", .questions = true, .official = 'A', .cuts = {2, 3, 4}});
  builder.addClass({.name = "Ewes", .reasons = true, .official = 'X', .cuts = {5, 5, 5}});
  builder.addClass({.name = "Gilts", .reasons = true, .questions = true, .official = ' '});
  builder.team("Avon", "", {"Ann", "Bob", "", "", "Eve", "Fay"});
  ReasonsOrder& order = builder.contest.reasonsOrder;
  order.reset(6, 3);
  order.setCells({{{0, 0}, 105}, {{0, 1}, 101}, {{0, 3}, 102}, {{1, 1}, 106}, {{2, 2}, 102}});
  return builder.contest;
}

template <typename Behaviour, typename... Description>
auto opened(const Description&... description) {
  return [=]() -> std::unique_ptr<DialogBehaviour> {
    return std::make_unique<Behaviour>(currentContest(), description...);
  };
}

const SessionWorld kEntry = {
    {{"Lookup/Edit Individual Scores", opened<LookupDialog>()},
     {"Move Or Clear Cards", opened<MoveCardsDialog>()},
     {"Input Placings Scores By Group", opened<GroupEntryDialog>(kPlacingsEntry)},
     {"Input Questions Scores By Group", opened<GroupEntryDialog>(kQuestionsEntry)},
     {"Input Reasons Scores By Group", opened<GroupEntryDialog>(kReasonsEntry)}},
    {{"empty cards", emptyCards}},
    {{"cards of two classes",
      [](Contest& c) {
        c.scores[101][1] = {'C', 44, 31, 0};
        c.scores[105][2] = {'D', 0, 0, 20};
      }},
     {"cards of class 3",
      [](Contest& c) {
        c.scores[101][2] = {'X', -2, 30, 0};
        c.scores[105][2] = {'Z', 0, 1, 40};
        c.scores[102][2] = {'A', 50, 0, 20};
        c.scores[103][2] = {'A', 50, 20, 20};
        c.reasonsOrder.setCell(2, 0, 103);
      }},
     {"cards with every score",
      [](Contest& c) {
        c.scores[101][0] = {'A', 50, 9, 8};
        c.scores[101][1] = {'A', 20, 7, 6};
      }},
     {"one cell",
      [](Contest& c) {
        c.reasonsOrder.reset(1, 1);
        c.reasonsOrder.setCell(0, 0, 102);
      }},
     {"official placing A", [](Contest& c) { c.classes.officialLetter[2] = 'A'; }},
     {"105 in a third group '!'",
      [](Contest& c) {
        c.groupLetters = {'A', 'B', '!'};
        c.contestantGroup[105] = '!';
      }},
     {"a zero of 105", [](Contest& c) { c.scores[105][0].letter = 'Z'; }},
     {"nobody behind 105", [](Contest& c) { c.contestantNames[105] = ""; }},
     {"number 0 exists", [](Contest& c) { c.contestantNames[0] = "Zoe"; }}}};

constexpr ControlId kCloseBox = 0;

void close(DialogBehaviour&& behaviour, int resource) {
  for (const ControlId way : {IDC_ENTRY_DONE, kOkId, kCancelId, kCloseBox}) {
    for (const bool named : {true, false}) {
      const TemporaryFolder folder;
      currentFileName() = named ? folder.file("fair.scv") : "";
      MemoryDialog dialog(resource, behaviour);
      way == kCloseBox ? dialog.pressCloseBox()
                       : behaviour.onEvent(dialog, way, ControlEvent::clicked);
      const bool cancelled = way == kCancelId && resource != IDD_ENTRY_PLACINGS;
      EXPECT_EQ(dialog.result(), cancelled ? 2 : 1) << dialog.caption() << way;
      EXPECT_EQ(folder.count(), named && !cancelled ? 1U : 0U) << dialog.caption() << way;
      EXPECT_TRUE(dialog.desktop.fileQuestions.empty()) << "no name is asked for";
      EXPECT_EQ(dialog.desktop.takeMessage(), "") << dialog.caption() << way;
    }
  }
}

TEST(Entry, ClosingSavesAContestWithAFileExceptWhenCancelled) {
  close(LookupDialog(currentContest()), IDD_LOOKUP);
  for (const GroupEntry& entry : {kPlacingsEntry, kReasonsEntry, kQuestionsEntry}) {
    close(GroupEntryDialog(currentContest(), entry), entry.resource);
  }
}

const bool kPlaysEntry = playSessions("entry", kEntry);

}  // namespace

}  // namespace scorvane
