// The entry dialogs differ in when closing them saves.
#include "entry/lookup_dialog.h"
#include "entry/placings_dialog.h"
#include "entry/questions_dialog.h"
#include "entry/reasons_dialog.h"
#include "tests/entry/entry_fixture.h"
#include "tests/support/temporary_folder.h"

namespace {

class ClosingEntry : public EntryTest {
 protected:
  template <typename Behaviour>
  void close(int resource, const std::string& way, bool named) {
    Behaviour behaviour;
    const TemporaryFolder folder;
    currentFileName() = named ? folder.file("fair.scv") : "";
    MemoryDialog dialog(resource, behaviour);
    if (way == "Done") dialog.click(1003);
    if (way == "OK") behaviour.onEvent(dialog, kOkId, ControlEvent::clicked);
    if (way == "Escape") dialog.pressEscape();
    if (way == "close box") dialog.pressCloseBox();
    const bool cancelled = way == "Escape" && resource != kPlacingsDialog;
    EXPECT_EQ(dialog.result(), cancelled ? 2 : 1) << dialog.caption() << way;
    EXPECT_EQ(folder.count(), named && !cancelled ? 1U : 0U) << dialog.caption() << way;
    EXPECT_TRUE(dialog.desktop.fileQuestions.empty()) << "no name is asked for";
  }
};

TEST_F(ClosingEntry, SavesAContestWithAFileExceptWhenCancelled) {
  for (const std::string way : {"Done", "OK", "Escape", "close box"}) {
    for (const bool named : {true, false}) {
      close<LookupDialog>(kLookupDialog, way, named);
      close<PlacingsDialog>(kPlacingsDialog, way, named);
      close<ReasonsDialog>(kReasonsDialog, way, named);
      close<QuestionsDialog>(kQuestionsDialog, way, named);
    }
  }
}

}  // namespace
