// A main window in memory: what it shows is recorded, what it asks is answered from a script.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/main_window.h"
#include "tests/ui/memory_dialog.h"

class MemoryMainWindow : public MainWindow {
 public:
  ScriptedDesktop desktop;
  std::string title;
  int refreshes = 0;
  CopyResult copyResult = CopyResult::copied;
  std::string clipboard;
  bool manualOpens = true;
  std::optional<FontFields> font;
  bool destroyed = false;
  std::vector<int> dialogs;  ///< resource ids of the dialogs run

  Answer ask(const Message& message) override { return desktop.ask(message); }
  std::optional<std::string> chooseFile(const FileQuestion& question) override {
    return desktop.chooseFile(question);
  }
  int runDialog(int resourceId, DialogBehaviour& behaviour) override {
    dialogs.push_back(resourceId);
    MemoryDialog dialog(resourceId, behaviour);
    dialog.pressCloseBox();
    return dialog.result().value_or(0);
  }
  void setTitle(std::string_view text) override { title = text; }
  void refreshReportView() override { ++refreshes; }
  CopyResult copyToClipboard(std::string_view text) override {
    clipboard = text;
    return copyResult;
  }
  void print(bool /*small*/) override {}
  bool openManual() override { return manualOpens; }
  std::optional<FontFields> chooseFont() override { return font; }
  void destroy() override { destroyed = true; }
};
