// Paints a report in a window and takes the window's scrolling.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ui/fixed_font_win32.h"
#include "ui/native_window_win32.h"
#include "view/report_view.h"

namespace scorvane {

class ReportWindow {
 public:
  /// Shows `text`, which must outlive this.
  ReportWindow(NativeWindow window, const std::string& text);

  /// Shows the text from its top-left corner.
  void refresh();
  /// Takes up the resolution of the display that the window came to.
  void changeResolution();
  /// Answers a message that concerns the view; false when it does not.
  bool handle(unsigned message, std::uintptr_t wParam, std::intptr_t lParam);

 private:
  [[nodiscard]] ViewMetrics measureFont() const;
  void loadFont();
  void loadPicture();
  void setBars();
  void setBar(int bar, const ScrollBar& values, std::optional<ScrollBar>& shown);
  void scroll(int bar, unsigned request, int thumb);
  bool scrollByKey(unsigned key);
  bool zoomByKey(unsigned key);
  void useFontOf(int points);
  void takeUpFont();
  void shift(int across, int down);
  void paint();
  void drawPicture(void* context, const ViewSize& client) const;
  void drawLines(void* context, const ViewSize& size);

  NativeWindow window_;
  const std::string& text_;
  ReportView view_;
  int dotsPerInch_ = 96;
  int points_ = kReportPoints;
  GraphicsObject font_;
  GraphicsObject picture_;
  int pictureDotsPerInch_ = 96;
  ViewSize pictureSize_;
  std::optional<ScrollBar> verticalShown_;
  std::optional<ScrollBar> horizontalShown_;
};

}  // namespace scorvane
