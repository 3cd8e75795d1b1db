// The main window as the commands see it.
#pragma once

#include <string_view>

#include "ui/window.h"

class MainWindow : public Window {
 public:
  /// Sets the text of the title bar.
  virtual void setTitle(std::string_view title) = 0;
  /// Shows reportText() from its top-left corner. To be called after every change of it.
  virtual void refreshReportView() = 0;
  /// Puts text on the clipboard, all of it.
  enum class CopyResult { copied, noMemory, noLock };
  virtual CopyResult copyToClipboard(std::string_view text) = 0;
  /// Prints reportText() after the system's print dialog; `small` starts with the small font.
  virtual void print(bool small) = 0;
  /// Opens the user's manual in the web browser; false when it cannot be started.
  virtual bool openManual() = 0;
  /// Runs the system's font chooser and shows the fields of the font chosen.
  virtual void showFontFields() = 0;
  /// Ends the program.
  virtual void destroy() = 0;
};
