// The entry dialogs differ in when closing them saves.
#include "entry/group_entry_dialog.h"
#include "entry/lookup_dialog.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "tests/support/temporary_folder.h"
#include "tests/ui/memory_dialog.h"

namespace scorvane {

namespace {

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

}  // namespace

}  // namespace scorvane
