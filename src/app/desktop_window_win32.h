// The main window on the desktop: its messages, and what the commands ask of it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "app/main_window.h"
#include "ui/native_window_win32.h"
#include "view/report_window_win32.h"

namespace scorvane {

class DesktopWindow final : public MainWindow {
 public:
  /// Takes over a main window that is being created.
  explicit DesktopWindow(NativeWindow window);

  [[nodiscard]] NativeWindow native() const { return window_; }

  /// Answers a message; nothing when the system is to.
  std::optional<std::intptr_t> handle(unsigned message, std::uintptr_t wParam,
                                      std::intptr_t lParam);

  Answer ask(const Message& message) override;
  std::optional<std::string> chooseFile(const FileQuestion& question) override;
  int runDialog(int resourceId, DialogBehaviour& behaviour) override;
  void setTitle(std::string_view title) override;
  void refreshReportView() override;
  CopyResult copyToClipboard(std::string_view text) override;
  void print(bool small) override;
  bool openManual() override;
  std::optional<FontFields> chooseFont() override;
  void destroy() override;

 private:
  void openDroppedFile(std::uintptr_t drop);
  void changeResolution(std::intptr_t suggestedArea);

  NativeWindow window_;
  ReportWindow report_;
  bool painted_ = false;
};

}  // namespace scorvane
