// Paints reportText() in a window and takes the window's scrolling.
#pragma once

#include <cstdint>
#include <optional>

#include "ui/fixed_font_win32.h"
#include "view/report_view.h"

using NativeWindow = struct HWND__*;

class ReportWindow {
 public:
  explicit ReportWindow(NativeWindow window);

  /// Shows reportText() from its top-left corner.
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
  void shift(int across, int down);
  void paint();
  void drawPicture(void* context, const ViewSize& client) const;
  void drawLines(void* context, const ViewSize& size);

  NativeWindow window_;
  ReportView view_;
  int dotsPerInch_ = 96;
  GraphicsObject font_;
  GraphicsObject picture_;
  int pictureDotsPerInch_ = 96;
  ViewSize pictureSize_;
  std::optional<ScrollBar> verticalShown_;
  std::optional<ScrollBar> horizontalShown_;
};
