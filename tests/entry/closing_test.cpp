// The entry dialogs differ in when closing them saves.
#include "entry/lookup_dialog.h"
#include "entry/placings_dialog.h"
#include "entry/questions_dialog.h"
#include "entry/reasons_dialog.h"
#include "tests/entry/entry_fixture.h"
#include "tests/support/temporary_folder.h"

namespace {

constexpr ControlId kDone = 1003;
constexpr ControlId kCloseBox = 0;

template <typename Make>
void close(Make make, int resource, ControlId way, bool named) {
  auto behaviour = make();
  const TemporaryFolder folder;
  currentFileName() = named ? folder.file("fair.scv") : "";
  MemoryDialog dialog(resource, behaviour);
  way == kCloseBox ? dialog.pressCloseBox() : behaviour.onEvent(dialog, way, ControlEvent::clicked);
  const bool cancelled = way == kCancelId && resource != kPlacingsDialog;
  EXPECT_EQ(dialog.result(), cancelled ? 2 : 1) << dialog.caption() << way;
  EXPECT_EQ(folder.count(), named && !cancelled ? 1U : 0U) << dialog.caption() << way;
  EXPECT_TRUE(dialog.desktop.fileQuestions.empty()) << "no name is asked for";
}

TEST_F(EntryTest, ClosingSavesAContestWithAFileExceptWhenCancelled) {
  for (const ControlId way : {kDone, kOkId, kCancelId, kCloseBox}) {
    for (const bool named : {true, false}) {
      close([] { return LookupDialog(); }, kLookupDialog, way, named);
      close(placingsDialog, kPlacingsDialog, way, named);
      close([] { return ReasonsDialog(); }, kReasonsDialog, way, named);
      close(questionsDialog, kQuestionsDialog, way, named);
    }
  }
}

}  // namespace
