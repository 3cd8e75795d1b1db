#include "app/window_commands.h"

#include "app/about_ids.h"
#include "session/open_contest.h"
#include "text/format.h"
#include "ui/dialog.h"

namespace scorvane {

namespace {

class AboutDialog : public DialogBehaviour {
 public:
  void onOpen(Dialog& dialog) override {
    dialog.setText(IDC_ABOUT_VERSION, "Version " SCORVANE_VERSION);
  }
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override {
    if (event != ControlEvent::clicked) return;
    if (id == kOkId || id == kCancelId) dialog.end(id);
  }
  void onClose(Dialog& dialog) override { dialog.end(kCancelId); }
};

}  // namespace

void copyReportToClipboard(MainWindow& window) {
  switch (window.copyToClipboard(reportText())) {
    case MainWindow::CopyResult::noMemory:
      window.show("Could not allocate the memory for the clipboard.", "Error");
      return;
    case MainWindow::CopyResult::noLock:
      window.show("Could not lock the memory for the clipboard.", "Error");
      return;
    case MainWindow::CopyResult::copied:
      break;
  }
  Message copied{"The currently visible report was copied to the clipboard.", "Information"};
  copied.informationIcon = true;
  window.ask(copied);
  window.refreshReportView();
}

void exitCommand(MainWindow& window) {
  window.destroy();
}

void helpCommand(MainWindow& window) {
  if (window.openManual()) return;
  window.show("Unable to spawn help.  Please select Scorvane Help from the start menu.", "Error");
}

void aboutCommand(MainWindow& window) {
  AboutDialog about;
  window.runDialog(IDD_ABOUT, about);
}

void fontCommand(MainWindow& window) {
  const std::optional<FontFields> font = window.chooseFont();
  if (font) window.show(fontFieldsText(*font), "Information");
}

std::string fontFieldsText(const FontFields& font) {
  return formatText(
      "lfHeight:          %ld\n"
      "lfWidth:           %ld\n"
      "lfEscapement:      %ld\n"
      "lfOrientation:     %ld\n"
      "lfWeight:          %ld\n"
      "lfItalic:          %d\n"
      "lfUnderline:       %d\n"
      "lfStrikeOut:       %d\n"
      "lfCharSet:         %d\n"
      "lfOutPrecision:    %d\n"
      "lfClipPrecision:   %d\n"
      "lfQuality:         %d\n"
      "lfPitchAndFamily:  %d\n"
      "lfFaceName:        %s\n",
      font.height, font.width, font.escapement, font.orientation, font.weight, font.italic,
      font.underline, font.strikeOut, font.charSet, font.outPrecision, font.clipPrecision,
      font.quality, font.pitchAndFamily, font.faceName.c_str());
}

}  // namespace scorvane
