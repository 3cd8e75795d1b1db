// A main window in memory: what it shows is recorded, what it asks is answered from a script, and
// the dialogs it runs are operated as a test says.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/main_window.h"
#include "tests/ui/memory_dialog.h"
#include "view/report_text.h"

class MemoryMainWindow : public MainWindow {
 public:
  ScriptedDesktop desktop;
  std::string title;
  int refreshes = 0;
  std::vector<std::string> shown;  ///< the report text at every refresh
  CopyResult copyResult = CopyResult::copied;
  std::string clipboard;
  bool manualOpens = true;
  std::optional<FontFields> font;
  bool destroyed = false;
  std::vector<int> dialogs;  ///< resource ids of the dialogs run
  /// What the operator does in the dialogs; by default closes them at once.
  std::function<void(MemoryDialog&)> operate = [](MemoryDialog& dialog) { dialog.pressCloseBox(); };

  Answer ask(const Message& message) override { return desktop.ask(message); }
  std::optional<std::string> chooseFile(const FileQuestion& question) override {
    return desktop.chooseFile(question);
  }
  int runDialog(int resourceId, DialogBehaviour& behaviour) override {
    dialogs.push_back(resourceId);
    MemoryDialog dialog(resourceId, behaviour);
    operate(dialog);
    return dialog.result().value_or(0);
  }
  void setTitle(std::string_view text) override { title = text; }
  void refreshReportView() override {
    ++refreshes;
    shown.push_back(reportText());
  }
  CopyResult copyToClipboard(std::string_view text) override {
    clipboard = text;
    return copyResult;
  }
  void print(bool /*small*/) override {}
  bool openManual() override { return manualOpens; }
  std::optional<FontFields> chooseFont() override { return font; }
  void destroy() override { destroyed = true; }
};
