#include "app/desktop_window_win32.h"

#include <windows.h>
// The common dialogs and the shell need windows.h before them.
#include <commdlg.h>
#include <shellapi.h>

#include "app/clipboard_win32.h"
#include "app/command_table.h"
#include "app/file_menu.h"
#include "app/manual_win32.h"
#include "model/contest.h"
#include "output/printer_win32.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "text/unicode_win32.h"
#include "ui/dialog_win32.h"

namespace scorvane {

namespace {

constexpr int kHelpCommand = 32857;
constexpr UINT kResolutionChanged = 0x02E0;  // WM_DPICHANGED, which older headers lack
constexpr LPARAM kWithoutPainting = -1;

}  // namespace

DesktopWindow::DesktopWindow(NativeWindow window)
    : window_(window), report_(window, reportText()) {}

std::optional<std::intptr_t> DesktopWindow::handle(unsigned message, std::uintptr_t wParam,
                                                   std::intptr_t lParam) {
  switch (message) {
    case WM_COMMAND:
      // Other programs can send commands while a dialog is open; the contest is the dialog's then.
      if (IsWindowEnabled(window_) != FALSE) runCommand(LOWORD(wParam), *this);
      return 0;
    case WM_KEYDOWN:
      if (wParam == VK_F1 || wParam == VK_HELP) {
        runCommand(kHelpCommand, *this);
        return 0;
      }
      break;
    case WM_DROPFILES:
      openDroppedFile(wParam);
      return 0;
    case kResolutionChanged:
      changeResolution(lParam);
      return 0;
    case WM_CLOSE:
      // What a dialog has not saved yet would be lost; the close box itself is disabled then.
      if (IsWindowEnabled(window_) == FALSE) return 0;
      break;
    case WM_NCACTIVATE:
      // As the window first shows, it is activated before its frame is painted; once is enough.
      if (!painted_) return DefWindowProcA(window_, message, wParam, kWithoutPainting);
      break;
    case WM_PAINT:
      painted_ = true;
      break;
    case WM_ENDSESSION:
      // With a dialog open this is no orderly end: its work is offered when the contest is opened.
      if (wParam != 0 && IsWindowEnabled(window_) != FALSE) endKeepingWork();
      return 0;
    case WM_DESTROY:
      endKeepingWork();
      PostQuitMessage(0);
      return 0;
    default:
      break;
  }
  if (!report_.handle(message, wParam, lParam)) return std::nullopt;
  return message == WM_ERASEBKGND ? 1 : 0;
}

void DesktopWindow::openDroppedFile(std::uintptr_t drop) {
  auto* files = reinterpret_cast<HDROP>(drop);
  // One byte more for the NUL that ends it.
  std::wstring path(DragQueryFileW(files, 0, nullptr, 0) + 1, L'\0');
  path.resize(DragQueryFileW(files, 0, path.data(), static_cast<UINT>(path.size())));
  DragFinish(files);
  if (path.empty() || IsWindowEnabled(window_) == FALSE) return;
  SetForegroundWindow(window_);
  openContestFile(*this, utf8OfWide(path));
}

void DesktopWindow::changeResolution(std::intptr_t suggestedArea) {
  const auto* area = reinterpret_cast<const RECT*>(suggestedArea);
  SetWindowPos(window_, nullptr, area->left, area->top, area->right - area->left,
               area->bottom - area->top, SWP_NOZORDER | SWP_NOACTIVATE);
  report_.changeResolution();
}

Answer DesktopWindow::ask(const Message& message) {
  return askOver(window_, message);
}

std::optional<std::string> DesktopWindow::chooseFile(const FileQuestion& question) {
  return chooseFileOver(window_, question);
}

int DesktopWindow::runDialog(int resourceId, DialogBehaviour& behaviour) {
  return runDialogOver(window_, resourceId, behaviour);
}

void DesktopWindow::setTitle(std::string_view title) {
  SetWindowTextA(window_, std::string(title).c_str());
}

void DesktopWindow::refreshReportView() {
  report_.refresh();
}

MainWindow::CopyResult DesktopWindow::copyToClipboard(std::string_view text) {
  return putOnClipboard(window_, text);
}

void DesktopWindow::print(bool small) {
  const ContestSettings& settings = currentContest().settings;
  printReport(window_, GetModuleHandleA(nullptr), reportText(),
              {settings.contestName, settings.contestDate, settings.divisionName, ""},
              small ? PrintFont::small : PrintFont::normal);
}

bool DesktopWindow::openManual() {
  return openManualInBrowser(window_);
}

std::optional<FontFields> DesktopWindow::chooseFont() {
  LOGFONTA font{};
  CHOOSEFONTA dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = window_;
  dialog.lpLogFont = &font;
  dialog.Flags = CF_SCREENFONTS;
  if (ChooseFontA(&dialog) == FALSE) return std::nullopt;
  return FontFields{font.lfHeight,         font.lfWidth,         font.lfEscapement,
                    font.lfOrientation,    font.lfWeight,        font.lfItalic,
                    font.lfUnderline,      font.lfStrikeOut,     font.lfCharSet,
                    font.lfOutPrecision,   font.lfClipPrecision, font.lfQuality,
                    font.lfPitchAndFamily, font.lfFaceName};
}

void DesktopWindow::destroy() {
  DestroyWindow(window_);
}

}  // namespace scorvane
