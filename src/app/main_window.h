// The main window as the commands see it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "session/open_contest.h"
#include "ui/window.h"

namespace scorvane {

class DialogBehaviour;

/// What the system's font chooser says about a font; sizes in its logical units.
struct FontFields {
  long height = 0, width = 0, escapement = 0, orientation = 0, weight = 0;
  int italic = 0, underline = 0, strikeOut = 0, charSet = 0;
  int outPrecision = 0, clipPrecision = 0, quality = 0, pitchAndFamily = 0;
  std::string faceName;
};

class MainWindow : public Window {
 public:
  /// Runs the dialog of a resource id modally over this window; returns the result it ended with.
  virtual int runDialog(int resourceId, DialogBehaviour& behaviour) = 0;
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
  /// Runs the font chooser of the system; nothing when cancelled.
  virtual std::optional<FontFields> chooseFont() = 0;
  /// Ends the program.
  virtual void destroy() = 0;
};

}  // namespace scorvane
