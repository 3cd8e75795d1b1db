// The entry dialogs differ in when closing them saves.
#include "entry/lookup_dialog.h"
#include "entry/placings_dialog.h"
#include "entry/questions_dialog.h"
#include "entry/reasons_dialog.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "tests/support/temporary_folder.h"
#include "tests/ui/memory_dialog.h"

namespace scorvane {

namespace {

constexpr ControlId kDone = 1003, kCloseBox = 0;

void close(DialogBehaviour&& behaviour, int resource) {
  for (const ControlId way : {kDone, kOkId, kCancelId, kCloseBox}) {
    for (const bool named : {true, false}) {
      const TemporaryFolder folder;
      currentFileName() = named ? folder.file("fair.scv") : "";
      MemoryDialog dialog(resource, behaviour);
      way == kCloseBox ? dialog.pressCloseBox()
                       : behaviour.onEvent(dialog, way, ControlEvent::clicked);
      const bool cancelled = way == kCancelId && resource != kPlacingsDialog;
      EXPECT_EQ(dialog.result(), cancelled ? 2 : 1) << dialog.caption() << way;
      EXPECT_EQ(folder.count(), named && !cancelled ? 1U : 0U) << dialog.caption() << way;
      EXPECT_TRUE(dialog.desktop.fileQuestions.empty()) << "no name is asked for";
      EXPECT_EQ(dialog.desktop.takeMessage(), "") << dialog.caption() << way;
    }
  }
}

TEST(Entry, ClosingSavesAContestWithAFileExceptWhenCancelled) {
  close(LookupDialog(), kLookupDialog);
  close(placingsDialog(), kPlacingsDialog);
  close(ReasonsDialog(), kReasonsDialog);
  close(questionsDialog(), kQuestionsDialog);
}

}  // namespace

}  // namespace scorvane
