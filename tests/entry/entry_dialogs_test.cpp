// What the entry dialogs do alike, and how they differ in closing.
#include <array>
#include <filesystem>
#include <memory>

#include "entry/lookup_dialog.h"
#include "entry/placings_dialog.h"
#include "entry/questions_dialog.h"
#include "entry/reasons_dialog.h"
#include "tests/entry/entry_fixture.h"
#include "tests/support/temporary_folder.h"

namespace {

constexpr ControlId kClasses = 1016;
constexpr ControlId kGroups = 1053;
constexpr ControlId kScore = 1004;
constexpr ControlId kDone = 1003;

struct EntryDialog {
  int resource;
  const char* caption;
  std::unique_ptr<DialogBehaviour> (*make)();
  bool cancels;  ///< Escape closes without saving
};

template <typename Behaviour>
std::unique_ptr<DialogBehaviour> make() {
  return std::make_unique<Behaviour>();
}

constexpr std::array kDialogs = {
    EntryDialog{kLookupDialog, "Lookup/Edit Individual Scores", make<LookupDialog>, true},
    EntryDialog{kPlacingsDialog, "Input Placings Scores By Group", make<PlacingsDialog>, false},
    EntryDialog{kReasonsDialog, "Input Reasons Scores By Group", make<ReasonsDialog>, true},
    EntryDialog{kQuestionsDialog, "Input Questions Scores By Group", make<QuestionsDialog>, true}};

using AllEntryDialogs = EntryTest;

TEST_F(AllEntryDialogs, SaveAContestThatHasAFileUnlessCancelled) {
  const TemporaryFolder folder;
  const std::string path = folder.file("fair.scv");
  enum Way { done, ok, escape, closeBox };
  for (const EntryDialog& entry : kDialogs) {
    for (const Way way : {done, ok, escape, closeBox}) {
      for (const bool named : {true, false}) {
        const auto behaviour = entry.make();
        MemoryDialog dialog(entry.resource, *behaviour);
        EXPECT_EQ(dialog.caption(), entry.caption);
        currentFileName() = named ? path : "";
        if (way == done) dialog.click(kDone);
        if (way == ok) behaviour->onEvent(dialog, kOkId, ControlEvent::clicked);
        if (way == escape) dialog.pressEscape();
        if (way == closeBox) dialog.pressCloseBox();
        const bool cancelled = way == escape && entry.cancels;
        EXPECT_EQ(dialog.result(), cancelled ? 2 : 1) << entry.caption << way;
        EXPECT_EQ(std::filesystem::remove(path), named && !cancelled) << entry.caption << way;
        EXPECT_TRUE(dialog.desktop.fileQuestions.empty()) << entry.caption << way;
      }
    }
  }
}

TEST_F(AllEntryDialogs, CheckClassGroupRangeAndContestantInThisOrder) {
  struct Case {
    const EntryDialog& entry;
    ControlId field;
    const char* group;
    const char* range;
    const char* noContestant;
  };
  const Case cases[] = {
      {kDialogs[2], 1028, "reasons group", "Error: Reasons Score must be between 0 and 50.",
       "Warning: Error:  no member number entered."},
      {kDialogs[3], 1056, "group", "Error: Questions Score must be between 0 and 50.",
       "Warning: Error:  no member number available."}};
  for (const Case& c : cases) {
    const auto behaviour = c.entry.make();
    MemoryDialog dialog(c.entry.resource, *behaviour);
    const auto press = [&](const char* typed) {
      dialog.fill(c.field, typed);
      dialog.click(kScore);
      EXPECT_EQ(dialog.focused(), c.field);
      return lastMessage(dialog) + " [" + dialog.text(c.field) + "]";
    };
    EXPECT_EQ(press("51"), "Error: You must select a class before entering a score. [51]");
    dialog.choose(kClasses, 0);
    EXPECT_EQ(press("51"), std::string("Error: You must select a ") + c.group +
                               " before entering a score. [51]");
    dialog.choose(kGroups, 2);
    EXPECT_EQ(press("51"), std::string(c.range) + " []");
    EXPECT_EQ(press("50"), std::string(c.noContestant) + " []");
    EXPECT_TRUE(contest().scores.empty());
  }
}

}  // namespace
