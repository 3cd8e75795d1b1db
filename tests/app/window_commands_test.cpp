#include "app/window_commands.h"

#include <gtest/gtest.h>

#include "app/command_table.h"
#include "tests/app/memory_main_window.h"
#include "view/report_text.h"

TEST(WindowCommands, CopyTakesTheWholeReportAndSaysSo) {
  MemoryMainWindow window;
  reportText() = "first\nsecond, open";
  runCommand(32777, window);
  EXPECT_EQ(window.clipboard, "first\nsecond, open");
  ASSERT_EQ(window.desktop.messages.size(), 1U);
  const Message& message = window.desktop.messages[0];
  EXPECT_EQ(message.text, "The currently visible report was copied to the clipboard.");
  EXPECT_EQ(message.caption, "Information");
  EXPECT_TRUE(message.informationIcon);
  EXPECT_EQ(window.refreshes, 1);
}

TEST(WindowCommands, CopySaysWhatFailed) {
  struct Case {
    MainWindow::CopyResult result;
    const char* text;
  };
  for (const Case& c :
       {Case{MainWindow::CopyResult::noMemory, "Could not allocate the memory for the clipboard."},
        Case{MainWindow::CopyResult::noLock, "Could not lock the memory for the clipboard."}}) {
    MemoryMainWindow window;
    window.copyResult = c.result;
    runCommand(32777, window);
    EXPECT_EQ(window.desktop.messages.at(0).caption, "Error");
    EXPECT_EQ(window.desktop.takeMessage(), c.text);
    EXPECT_EQ(window.refreshes, 0);
  }
}

TEST(WindowCommands, HelpTellsWhenTheManualCannotBeOpened) {
  MemoryMainWindow window;
  runCommand(32857, window);
  EXPECT_TRUE(window.desktop.messages.empty());
  window.manualOpens = false;
  runCommand(32857, window);
  EXPECT_EQ(window.desktop.messages.at(0).caption, "Error");
  EXPECT_EQ(window.desktop.takeMessage(),
            "Unable to spawn help.  Please select Scorvane Help from the start menu.");
}

TEST(WindowCommands, AboutLeavesTheReportAlone) {
  MemoryMainWindow window;
  reportText() = "a report\n";
  runCommand(104, window);
  EXPECT_EQ(window.dialogs, std::vector<int>{103});
  EXPECT_EQ(reportText(), "a report\n");
}

TEST(WindowCommands, FontShowsTheFieldsChosen) {
  MemoryMainWindow window;
  runCommand(32809, window);
  EXPECT_TRUE(window.desktop.messages.empty());
  window.font = FontFields{};
  window.font->height = -13;
  window.font->faceName = "Consolas";
  runCommand(32809, window);
  EXPECT_EQ(window.desktop.messages.at(0).caption, "Information");
  const std::string text = window.desktop.takeMessage();
  EXPECT_EQ(text.find("lfHeight:          -13\n"), 0U);
  EXPECT_NE(text.find("lfFaceName:        Consolas"), std::string::npos);
}

TEST(WindowCommands, ExitEndsTheProgram) {
  MemoryMainWindow window;
  runCommand(105, window);
  EXPECT_TRUE(window.destroyed);
}
