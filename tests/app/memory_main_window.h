// A main window in memory: what it shows and does is written down, what it asks is answered from a
// script, and the dialogs it runs are operated as a test says.
#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "app/main_window.h"
#include "session/open_contest.h"
#include "tests/ui/memory_dialog.h"

namespace scorvane {

class MemoryMainWindow : public MainWindow {
 public:
  ScriptedDesktop desktop;
  std::string log;  ///< a line for all that an operator would see, above all another report
  std::string onScreen;
  CopyResult copyResult = CopyResult::copied;
  bool manualOpens = true;
  std::optional<FontFields> font;
  /// What the operator does in the dialogs; by default closes them at once.
  std::function<void(MemoryDialog&)> operate = [](MemoryDialog& dialog) { dialog.pressCloseBox(); };

  Answer ask(const Message& message) override {
    note(message.caption, message.text + (message.informationIcon ? " (i)" : "") +
                              (message.defaultAnswer == Answer::cancel ? " (Enter cancels)" : ""));
    return desktop.ask(message);
  }
  std::optional<std::string> chooseFile(const FileQuestion& question) override {
    std::string kinds = question.fileMustExist ? "one that is there" : "any";
    for (const FileFilter& filter : question.filters) kinds += ", " + filter.name + filter.pattern;
    note(question.purpose == FileQuestion::Purpose::open ? "open" : "save",
         kinds + ", else ." + question.defaultExtension);
    return desktop.chooseFile(question);
  }
  int runDialog(int resourceId, DialogBehaviour& behaviour) override {
    MemoryDialog dialog(resourceId, behaviour);
    note("dialog", dialog.caption());
    operate(dialog);
    for (const Message& message : dialog.desktop.messages) note(message.caption, message.text);
    if (dialog.result()) note("ended with", std::to_string(*dialog.result()));
    return dialog.result().value_or(0);
  }
  void setTitle(std::string_view text) override { note("title", text); }
  void refreshReportView() override {
    const std::string& report = reportText();
    if (std::exchange(onScreen, report) == report) return;
    const std::size_t start = std::min(report.find_first_not_of("\n\t "), report.size());
    const auto lines = std::count(report.begin(), report.end(), '\n');
    note("shown", report.substr(start, report.find('\n', start) - start) +
                      ", lines: " + std::to_string(lines));
  }
  CopyResult copyToClipboard(std::string_view text) override {
    note("copied", text);
    return copyResult;
  }
  void print(bool small) override { note("printed", small ? "small" : "large"); }
  bool openManual() override { return manualOpens; }
  std::optional<FontFields> chooseFont() override { return font; }
  void destroy() override { note("ended", ""); }

 private:
  void note(std::string_view what, std::string_view text) {
    log.append("  ").append(what).append(": ").append(text).append("\n");
    std::erase(log, '\r');
  }
};

}  // namespace scorvane
