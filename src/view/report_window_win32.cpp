#include "view/report_window_win32.h"

#include <windows.h>

#include <algorithm>
#include <optional>

#include "text/report_marks.h"
#include "ui/native_window_win32.h"
#include "view/picture_ids.h"

namespace scorvane {

namespace {

struct PictureResource {
  int id;
  int dotsPerInch;  // the resolution that the bitmap is drawn for
};

constexpr PictureResource kPicture = {IDB_WELCOME, 96};
constexpr PictureResource kDensePicture = {IDB_WELCOME_DENSE, 192};

ViewSize clientSize(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  return {client.right, client.bottom};
}

// The vertical bar follows its thumb while it is dragged, the horizontal one when it is dropped.
// Odd but required, docs/required-behaviour.md: view-thumbs
std::optional<ScrollMove> moveOf(int bar, unsigned request) {
  switch (request) {
    case SB_LINEUP:
      return ScrollMove::lineBack;
    case SB_LINEDOWN:
      return ScrollMove::lineForward;
    case SB_PAGEUP:
      return ScrollMove::pageBack;
    case SB_PAGEDOWN:
      return ScrollMove::pageForward;
    case SB_THUMBTRACK:
      if (bar == SB_VERT) return ScrollMove::track;
      break;
    case SB_THUMBPOSITION:
      if (bar == SB_HORZ) return ScrollMove::track;
      break;
    case SB_TOP:
      if (bar == SB_VERT) return ScrollMove::start;
      break;
    case SB_BOTTOM:
      if (bar == SB_VERT) return ScrollMove::end;
      break;
    default:
      break;
  }
  return std::nullopt;
}

// The message carries only 16 bits of the thumb's position; the bar knows all of them.
int thumbPosition(HWND window, int bar, WORD reported) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_TRACKPOS;
  const bool known = GetScrollInfo(window, bar, &info) != FALSE;
  return known && LOWORD(info.nTrackPos) == reported ? info.nTrackPos : reported;
}

}  // namespace

ReportWindow::ReportWindow(NativeWindow window, const std::string& text)
    : window_(window), text_(text), dotsPerInch_(resolutionOf(window)) {
  loadFont();
  loadPicture();
  view_.open(text_, measureFont());
  EnableScrollBar(window_, SB_BOTH, ESB_ENABLE_BOTH);
  // As the window is not visible yet, this paints nothing.
  view_.resize(clientSize(window_));
  setBars();
}

void ReportWindow::loadFont() {
  font_ = makeFixedFont(MulDiv(points_, dotsPerInch_, 72));
}

void ReportWindow::loadPicture() {
  const PictureResource& resource = dotsPerInch_ > kPicture.dotsPerInch ? kDensePicture : kPicture;
  pictureDotsPerInch_ = resource.dotsPerInch;
  // Not as a DIB section, which could not hold a compressed bitmap on every Windows.
  picture_.reset(LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(resource.id), IMAGE_BITMAP,
                            0, 0, LR_DEFAULTCOLOR));
  BITMAP bitmap{};
  if (picture_ == nullptr || GetObjectA(picture_.get(), sizeof bitmap, &bitmap) == 0) return;
  pictureSize_ = {bitmap.bmWidth, bitmap.bmHeight};
}

ViewMetrics ReportWindow::measureFont() const {
  HDC context = GetDC(window_);
  const HGDIOBJ previous = SelectObject(context, font_.get());
  TEXTMETRICA measures{};
  GetTextMetricsA(context, &measures);
  SelectObject(context, previous);
  ReleaseDC(window_, context);
  return {std::max<int>(1, measures.tmAveCharWidth),
          std::max<int>(1, measures.tmHeight + measures.tmExternalLeading)};
}

void ReportWindow::refresh() {
  view_.refresh(text_, measureFont(), clientSize(window_));
  setBars();
  InvalidateRect(window_, nullptr, TRUE);
  UpdateWindow(window_);
}

void ReportWindow::changeResolution() {
  dotsPerInch_ = resolutionOf(window_);
  loadPicture();
  takeUpFont();
}

// The first line stays the first.
void ReportWindow::takeUpFont() {
  const int position = view_.vertical().position;
  loadFont();
  view_.refresh(text_, measureFont(), clientSize(window_));
  view_.scrollVertically(ScrollMove::track, position);
  setBars();
  InvalidateRect(window_, nullptr, TRUE);
}

void ReportWindow::setBars() {
  setBar(SB_VERT, view_.vertical(), verticalShown_);
  setBar(SB_HORZ, view_.horizontal(), horizontalShown_);
}

// Leaves a bar alone that shows the values already: setting it would paint it again.
void ReportWindow::setBar(int bar, const ScrollBar& values, std::optional<ScrollBar>& shown) {
  if (shown == values) return;
  shown = values;
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL | SIF_DISABLENOSCROLL;
  info.nMin = 0;
  info.nMax = values.maximum;
  info.nPage = static_cast<UINT>(values.page);
  info.nPos = values.position;
  SetScrollInfo(window_, bar, &info, TRUE);
}

bool ReportWindow::handle(unsigned message, std::uintptr_t wParam, std::intptr_t lParam) {
  switch (message) {
    case WM_SIZE:
      view_.resize({LOWORD(lParam), HIWORD(lParam)});
      setBars();
      return true;
    case WM_ERASEBKGND:
      return true;  // painting covers everything, at once and without flicker
    case WM_PAINT:
      paint();
      return true;
    case WM_VSCROLL:
      scroll(SB_VERT, LOWORD(wParam), HIWORD(wParam));
      return true;
    case WM_HSCROLL:
      scroll(SB_HORZ, LOWORD(wParam), HIWORD(wParam));
      return true;
    case WM_MOUSEWHEEL:
      if ((LOWORD(wParam) & MK_CONTROL) != 0) {
        useFontOf(zoomedPoints(points_, GET_WHEEL_DELTA_WPARAM(wParam) / WHEEL_DELTA));
        return true;
      }
      shift(0, view_.turnWheel(GET_WHEEL_DELTA_WPARAM(wParam)));
      return true;
    case WM_KEYDOWN:
      return GetKeyState(VK_CONTROL) < 0 ? zoomByKey(static_cast<unsigned>(wParam))
                                         : scrollByKey(static_cast<unsigned>(wParam));
    default:
      return false;
  }
}

void ReportWindow::scroll(int bar, unsigned request, int thumb) {
  const std::optional<ScrollMove> move = moveOf(bar, request);
  if (!move) return;
  const int position = thumbPosition(window_, bar, static_cast<WORD>(thumb));
  if (bar == SB_VERT) {
    shift(0, view_.scrollVertically(*move, position));
  } else {
    shift(view_.scrollHorizontally(*move, position), 0);
  }
}

bool ReportWindow::scrollByKey(unsigned key) {
  std::optional<ScrollMove> move;
  switch (key) {
    case VK_PRIOR:
      move = ScrollMove::pageBack;
      break;
    case VK_NEXT:
      move = ScrollMove::pageForward;
      break;
    case VK_HOME:
      move = ScrollMove::start;
      break;
    case VK_END:
      move = ScrollMove::end;
      break;
    case VK_UP:
      move = ScrollMove::lineBack;
      break;
    case VK_DOWN:
      move = ScrollMove::lineForward;
      break;
    default:
      return false;
  }
  shift(0, view_.scrollVertically(*move));
  return true;
}

bool ReportWindow::zoomByKey(unsigned key) {
  switch (key) {
    case VK_OEM_PLUS:
    case VK_ADD:
      useFontOf(zoomedPoints(points_, 1));
      return true;
    case VK_OEM_MINUS:
    case VK_SUBTRACT:
      useFontOf(zoomedPoints(points_, -1));
      return true;
    case '0':
    case VK_NUMPAD0:
      useFontOf(kReportPoints);
      return true;
    default:
      return scrollByKey(key);
  }
}

void ReportWindow::useFontOf(int points) {
  if (points == points_) return;
  points_ = points;
  takeUpFont();
}

// Scrolls the window and repaints it. A move across has no lasting effect.
// Odd but required, docs/required-behaviour.md: view-no-scrolling-across
void ReportWindow::shift(int across, int down) {
  setBars();
  if (across == 0 && down == 0) return;
  ScrollWindowEx(window_, across, down, nullptr, nullptr, nullptr, nullptr, SW_INVALIDATE);
  InvalidateRect(window_, nullptr, TRUE);
  UpdateWindow(window_);
}

void ReportWindow::paint() {
  // Lines are always drawn from the top of the window, so a part of it cannot be repainted alone.
  InvalidateRect(window_, nullptr, FALSE);
  PAINTSTRUCT request{};
  HDC screen = BeginPaint(window_, &request);
  const ViewSize size = clientSize(window_);
  HDC memory = CreateCompatibleDC(screen);
  const GraphicsObject canvas(CreateCompatibleBitmap(screen, size.width, size.height));
  const HGDIOBJ previous = SelectObject(memory, canvas.get());
  const RECT all = {0, 0, size.width, size.height};
  FillRect(memory, &all, GetSysColorBrush(COLOR_WINDOW));
  if (text_ == kWelcomeText) drawPicture(memory, size);
  drawLines(memory, size);
  BitBlt(screen, 0, 0, size.width, size.height, memory, 0, 0, SRCCOPY);
  SelectObject(memory, previous);
  DeleteDC(memory);
  EndPaint(window_, &request);
}

void ReportWindow::drawPicture(void* context, const ViewSize& client) const {
  auto* target = static_cast<HDC>(context);
  const ViewSize own = {MulDiv(pictureSize_.width, dotsPerInch_, pictureDotsPerInch_),
                        MulDiv(pictureSize_.height, dotsPerInch_, pictureDotsPerInch_)};
  const ViewSize shown = pictureSize(own, client);
  HDC source = CreateCompatibleDC(target);
  const HGDIOBJ previous = SelectObject(source, picture_.get());
  SetStretchBltMode(target, HALFTONE);
  SetBrushOrgEx(target, 0, 0, nullptr);
  StretchBlt(target, kPicturePosition, kPicturePosition, shown.width, shown.height, source, 0, 0,
             pictureSize_.width, pictureSize_.height, SRCCOPY);
  SelectObject(source, previous);
  DeleteDC(source);
}

void ReportWindow::drawLines(void* context, const ViewSize& size) {
  auto* target = static_cast<HDC>(context);
  const HGDIOBJ previous = SelectObject(target, font_.get());
  SetTextColor(target, GetSysColor(COLOR_WINDOWTEXT));
  SetBkMode(target, TRANSPARENT);
  const ViewMetrics& metrics = view_.metrics();
  const auto columns = static_cast<std::size_t>(size.width / metrics.charWidth + 1);
  const ReportView::Lines lines = view_.linesAt(0, size.height);
  for (int index = lines.first; index <= lines.last; ++index) {
    const std::string_view line = view_.line(text_, index).substr(0, columns);
    TabbedTextOutA(target, 0, (index - lines.first) * metrics.lineHeight, line.data(),
                   static_cast<int>(line.size()), 0, nullptr, 0);
  }
  SelectObject(target, previous);
}

}  // namespace scorvane
