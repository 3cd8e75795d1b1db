#include <gtest/gtest.h>

#include "app/command_table.h"
#include "model/reasons_check.h"
#include "setup/reasons_class_dialog.h"
#include "setup/reasons_order_edit_dialog.h"
#include "setup/reasons_order_report.h"
#include "storage/contest_commands.h"
#include "tests/app/memory_main_window.h"
#include "tests/setup/reasons_contest.h"

namespace {

constexpr int kGenerate = 32867;
constexpr int kEdit = 32864;
constexpr int kOrderSheet = 32843;
constexpr int kVerificationSheet = 32844;

class ReasonsCommands : public testing::Test {
 protected:
  void SetUp() override {
    currentFileName().clear();
    currentContest() = reasonsContest(3, 3, 6);
    reportText() = "Report before\n";
  }
  static std::string plainReport() {
    return reasonsOrderReport(currentContest(), ReasonsOrderForm::plain);
  }
  MemoryMainWindow window;
};

TEST_F(ReasonsCommands, GenerateAsksGeneratesSavesAndShowsTheReport) {
  window.desktop.answers = {Answer::ok};
  runCommand(kGenerate, window);
  EXPECT_EQ(window.desktop.messages.at(0).defaultAnswer, Answer::cancel);
  EXPECT_EQ(window.desktop.fileQuestions.size(), 1U) << "an untitled contest is saved by asking";
  EXPECT_EQ(reasonsOrderFault(currentContest()), "");
  EXPECT_EQ(currentContest().reasonsPlace[106].group, 2);
  EXPECT_EQ(window.shown, std::vector{plainReport()});
}

TEST_F(ReasonsCommands, GenerateLeavesEverythingWhenDeclinedOrRefused) {
  const Contest before = currentContest();
  window.desktop.answers = {Answer::cancel};
  runCommand(kGenerate, window);
  EXPECT_EQ(window.desktop.messages.size(), 1U);
  EXPECT_EQ(currentContest(), before);

  currentContest().settings.numReasonsGroups = 2;
  window.desktop.answers = {Answer::ok};
  runCommand(kGenerate, window);
  EXPECT_EQ(window.desktop.messages.back().caption, "Error");
  EXPECT_TRUE(window.desktop.fileQuestions.empty()) << "nothing is saved";
  EXPECT_TRUE(window.shown.empty());
  EXPECT_EQ(reportText(), "Report before\n");
}

TEST_F(ReasonsCommands, EditRunsOverTheWelcomeTextAndEndsWithTheReport) {
  window.operate = [](MemoryDialog& dialog) {
    dialog.choose(ReasonsOrderEditDialog::kGroups, 1);
    dialog.choose(ReasonsOrderEditDialog::kUnassigned, 0);
    dialog.pressEnter();
  };
  runCommand(kEdit, window);
  EXPECT_EQ(window.dialogs, std::vector{ReasonsOrderEditDialog::kResourceId});
  EXPECT_EQ(currentContest().reasonsOrder.cell(0, 1), 101);
  EXPECT_EQ(window.shown.front(), kWelcomeText);
  EXPECT_EQ(window.shown.back(), plainReport());
}

TEST_F(ReasonsCommands, SheetsAreMadeForTheClassChosen) {
  placeGroup(currentContest(), 0, {101});
  window.operate = [](MemoryDialog& dialog) {
    EXPECT_EQ(dialog.lines(ReasonsClassDialog::kClasses),
              (std::vector<std::string>{" 2.  Ewes 1 in Milk", " 3.  Ewes 2 in Milk",
                                        " 4.  Ewes 3 in Milk"}));
    dialog.click(kOkId);
    EXPECT_EQ(dialog.desktop.takeMessage(), "You must select a reasons class before proceeding.");
    EXPECT_EQ(dialog.result(), std::nullopt);
    dialog.choose(ReasonsClassDialog::kClasses, 1);
    dialog.pressEnter();
    EXPECT_EQ(dialog.result(), kOkId);
  };
  ReportRequest request;
  request.classIndex = 2;
  for (const int command : {kOrderSheet, kVerificationSheet}) {
    runCommand(command, window);
    EXPECT_EQ(window.shown.back(), findCommand(command)->report(currentContest(), request));
  }
  EXPECT_NE(window.shown.at(0), window.shown.at(1));
  EXPECT_EQ(window.shown.size(), 2U) << "no welcome text behind this dialog";
}

TEST_F(ReasonsCommands, SheetsLeaveTheReportWhenCancelledOrWithoutRows) {
  const std::vector<std::function<void(MemoryDialog&)>> endings = {
      [](MemoryDialog& dialog) { dialog.pressEscape(); },
      [](MemoryDialog& dialog) { dialog.pressCloseBox(); },
      [](MemoryDialog& dialog) {
        currentContest().reasonsOrder.reset(0, 3);
        dialog.click(kOkId);
      }};
  for (const auto& ending : endings) {
    window.operate = [&](MemoryDialog& dialog) {
      dialog.choose(ReasonsClassDialog::kClasses, 0);
      ending(dialog);
    };
    runCommand(kOrderSheet, window);
    EXPECT_EQ(reportText(), "Report before\n");
  }
  EXPECT_EQ(window.dialogs.size(), 3U);
}

}  // namespace
