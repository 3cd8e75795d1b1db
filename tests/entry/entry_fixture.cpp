#include "tests/entry/entry_fixture.h"

#include <filesystem>

Closed closeDialog(MemoryDialog& dialog, DialogBehaviour& behaviour, Close how, bool named) {
  const std::string path = testing::TempDir() + "closed_entry.scv";
  std::filesystem::remove(path);
  if (named) currentFileName() = path;
  switch (how) {
    case Close::done:
      dialog.click(1003);
      break;
    case Close::ok:
      behaviour.onEvent(dialog, kOkId, ControlEvent::clicked);
      break;
    case Close::escape:
      dialog.pressEscape();
      break;
    case Close::closeBox:
      dialog.pressCloseBox();
      break;
  }
  EXPECT_TRUE(dialog.desktop.fileQuestions.empty());
  return {dialog.result(), std::filesystem::remove(path)};
}
