#include <gtest/gtest.h>

#include "app/command_table.h"
#include "model/contest.h"
#include "tests/app/memory_main_window.h"

namespace {

TEST(ScoreMenu, OpensTheEntryDialogsOverTheWelcomeText) {
  currentContest() = Contest{};
  currentContest().reasonsOrder.reset(1, 1);
  MemoryMainWindow window;
  reportText() = "old\n";
  for (const int command : {32791, 32822, 32823, 32826}) runCommand(command, window);
  EXPECT_EQ(window.dialogs, (std::vector<int>{137, 147, 148, 149}));
  EXPECT_EQ(window.shown, std::vector<std::string>(8, kWelcomeText));
  currentContest() = Contest{};
}

TEST(ScoreMenu, AsksForAReasonsOrderBeforeReasonsScores) {
  currentContest() = Contest{};
  MemoryMainWindow window;
  reportText() = "old\n";
  runCommand(32823, window);
  EXPECT_TRUE(window.dialogs.empty());
  EXPECT_EQ(window.shown, std::vector<std::string>{kWelcomeText});
  ASSERT_EQ(window.desktop.messages.size(), 1U);
  EXPECT_EQ(window.desktop.messages[0].caption, "Information");
  EXPECT_EQ(window.desktop.takeMessage(),
            "You must first generate a reasons order before entering reasons scores.\n"
            "Select the Generate Reasons Order option in the Setup menu to do this.");
}

}  // namespace
