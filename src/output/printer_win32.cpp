#include "output/printer_win32.h"

#include <windows.h>
// After windows.h, which it needs.
#include <commdlg.h>

#include <string>
#include <utility>

#include "output/output_ids.h"

namespace scorvane {

namespace {

/// Global because Windows passes no data of ours to the abort procedure. One job at a time.
struct Job {
  bool running = false;  ///< cleared by the abort dialog
  HWND dialog = nullptr;
};

Job& job() {
  static Job instance;
  return instance;
}

INT_PTR CALLBACK abortDialogProcedure(HWND, UINT message, WPARAM, LPARAM) {
  if (message == WM_INITDIALOG) return TRUE;
  if (message != WM_COMMAND) return FALSE;
  job().running = false;  // the button, Escape and the close box alike
  return TRUE;
}

/// Keeps the program's windows alive during the spooler's work, and tells it whether to go on.
BOOL CALLBACK abortProcedure(HDC, int) {
  MSG message;
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    if (message.message == WM_QUIT) {
      // The program is ending: hand the message on to the main loop.
      job().running = false;
      PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    if (job().dialog == nullptr || IsDialogMessageA(job().dialog, &message) == 0) {
      TranslateMessage(&message);
      DispatchMessageA(&message);
    }
  }
  return job().running ? TRUE : FALSE;
}

/// A printer's device context, released at the end.
class PrinterContext {
 public:
  explicit PrinterContext(HDC context) : context_(context) {}
  PrinterContext(const PrinterContext&) = delete;
  PrinterContext& operator=(const PrinterContext&) = delete;
  ~PrinterContext() { DeleteDC(context_); }
  [[nodiscard]] HDC get() const { return context_; }

 private:
  HDC context_;
};

/// The font selected into a context; the context gets its own font back at the end.
class SelectedFont {
 public:
  SelectedFont(HDC context, PrintFont font)
      : context_(context), own_(GetCurrentObject(context, OBJ_FONT)) {
    select(font);
  }
  SelectedFont(const SelectedFont&) = delete;
  SelectedFont& operator=(const SelectedFont&) = delete;
  ~SelectedFont() {
    SelectObject(context_, own_);
    if (font_ != nullptr) DeleteObject(font_);
  }

  /// Keeps the present font when the new one cannot be made.
  void select(PrintFont font) {
    if (font == PrintFont::small) {
      // Odd but required, docs/required-behaviour.md: small-font-of-fixed-height
      constexpr LONG kSmallHeight = -55;
      selectHeight(kSmallHeight);
      return;
    }
    selectHeight(0);
    const int height = normalFontHeight(metrics().tmHeight, GetDeviceCaps(context_, LOGPIXELSY));
    if (height != 0) selectHeight(height);
  }

  [[nodiscard]] TEXTMETRICA metrics() const {
    TEXTMETRICA metrics = {};
    GetTextMetricsA(context_, &metrics);
    return metrics;
  }

 private:
  /// 0: the device's default height.
  void selectHeight(LONG height) {
    LOGFONTA description = {};
    description.lfHeight = height;
    description.lfWeight = FW_NORMAL;
    description.lfCharSet = ANSI_CHARSET;
    description.lfOutPrecision = OUT_STRING_PRECIS;
    description.lfClipPrecision = CLIP_STROKE_PRECIS;
    description.lfQuality = DRAFT_QUALITY;
    description.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    lstrcpynA(description.lfFaceName, "Courier", LF_FACESIZE);
    HFONT created = CreateFontIndirectA(&description);
    if (created == nullptr) return;
    SelectObject(context_, created);
    if (font_ != nullptr) DeleteObject(font_);
    font_ = created;
  }

  HDC context_;
  HGDIOBJ own_;
  HFONT font_ = nullptr;
};

/// From here to the end of the scope a job runs: the owner is disabled and the abort dialog open.
class AbortableJob {
 public:
  AbortableJob(HWND owner, HINSTANCE instance, HDC printer) : owner_(owner) {
    job().running = true;
    SetAbortProc(printer, abortProcedure);
    EnableWindow(owner_, FALSE);
    // The print goes on without the dialog when it cannot be made.
    job().dialog =
        CreateDialogParamA(instance, "IDD_AbortPrintJob", owner_, abortDialogProcedure, 0);
  }
  AbortableJob(const AbortableJob&) = delete;
  AbortableJob& operator=(const AbortableJob&) = delete;
  ~AbortableJob() {
    // Destroying the active dialog of a disabled owner brings another program to the front.
    const bool inFront = job().dialog != nullptr && GetForegroundWindow() == job().dialog;
    if (job().dialog != nullptr) DestroyWindow(job().dialog);
    EnableWindow(owner_, TRUE);
    if (inFront) SetForegroundWindow(owner_);
    job() = {};
  }

  void showProgress(const std::string& text) const {
    if (job().dialog == nullptr) return;
    SetDlgItemTextA(job().dialog, IDC_PRINT_PROGRESS, text.c_str());
    RedrawWindow(job().dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  }

 private:
  HWND owner_;
};

struct PageMetrics {
  int lineHeight = 0;
  std::int32_t linesPerPage = 0;
};

/// Measured once a job, in the font it starts with.
PageMetrics measure(HDC printer, const SelectedFont& font) {
  const TEXTMETRICA metrics = font.metrics();
  const int lineHeight = metrics.tmHeight + metrics.tmExternalLeading;
  return {lineHeight, linesThatFit(GetDeviceCaps(printer, VERTRES), lineHeight)};
}

/// Performs operations on the printer; each returns false when the printer refuses it.
class Performer {
 public:
  Performer(HDC printer, SelectedFont& font, int lineHeight, const AbortableJob& abortable,
            std::string_view report, std::int64_t pages)
      : printer_(printer),
        font_(font),
        lineHeight_(lineHeight),
        abortable_(abortable),
        report_(report),
        pages_(pages) {}

  bool operator()(const print_operation::StartPage& operation) const {
    abortable_.showProgress(printProgressText(report_, operation.page, pages_));
    return ::StartPage(printer_) > 0;
  }
  bool operator()(const print_operation::Text& operation) const {
    TextOutA(printer_, 0, static_cast<int>(operation.row - 1) * lineHeight_, operation.text.c_str(),
             static_cast<int>(operation.text.size()));
    return true;
  }
  bool operator()(const print_operation::SelectFont& operation) const {
    font_.select(operation.font);
    return true;
  }
  bool operator()(const print_operation::EndPage&) const {
    // Not every spooler asks the abort procedure of itself.
    return ::EndPage(printer_) > 0 && abortProcedure(printer_, 0) != 0;
  }

 private:
  HDC printer_;
  SelectedFont& font_;
  int lineHeight_;
  const AbortableJob& abortable_;
  std::string_view report_;
  std::int64_t pages_;
};

/// Asks the operator for a printer; null when the dialog was cancelled or there is no printer.
HDC choosePrinter(HWND owner) {
  PRINTDLGA dialog = {};
  dialog.lStructSize = sizeof(dialog);
  dialog.hwndOwner = owner;
  dialog.Flags = PD_RETURNDC | PD_NOSELECTION | PD_NOPAGENUMS | PD_USEDEVMODECOPIESANDCOLLATE;
  dialog.nCopies = 1;
  dialog.nMinPage = 1;
  dialog.nMaxPage = 1;
  const bool chosen = PrintDlgA(&dialog) != 0;
  if (dialog.hDevMode != nullptr) GlobalFree(dialog.hDevMode);
  if (dialog.hDevNames != nullptr) GlobalFree(dialog.hDevNames);
  return chosen ? dialog.hDC : nullptr;
}

/// Starts the document, performs everything and ends it; stops at the first refusal.
void performJob(HDC printer, const std::vector<PrintOperation>& operations,
                const Performer& performer) {
  DOCINFOA document = {};
  document.cbSize = sizeof(document);
  // Odd but required, docs/required-behaviour.md: print-job-name
  document.lpszDocName = "Bitmap Printing Test";
  if (StartDocA(printer, &document) <= 0) {
    EndDoc(printer);
    return;
  }
  for (const PrintOperation& operation : operations) {
    if (!std::visit(performer, operation)) {
      // The document is not ended, so that nothing of it is printed.
      AbortDoc(printer);
      return;
    }
  }
  EndDoc(printer);
}

PrintHeader withTime(PrintHeader header) {
  const std::time_t now = std::time(nullptr);
  if (const std::tm* local = std::localtime(&now)) header.printedAt = calendarTimeText(*local);
  return header;
}

}  // namespace

void printReport(HWND owner, HINSTANCE instance, std::string_view report, PrintHeader header,
                 PrintFont font) {
  if (job().running) return;
  // Messages arrive during the print, so that the report could change under it.
  const std::string text(report);
  HDC chosen = choosePrinter(owner);
  if (chosen == nullptr) return;
  // Odd but required, docs/required-behaviour.md: print-needs-bitmaps
  if ((GetDeviceCaps(chosen, RASTERCAPS) & RC_STRETCHDIB) == 0) {
    DeleteDC(chosen);
    MessageBoxA(owner, "Printer does not support StretchDIBits.", "Device Error", MB_OK);
    return;
  }
  const PrinterContext printer(chosen);
  SelectedFont selected(printer.get(), font);
  const AbortableJob abortable(owner, instance, printer.get());
  const PageMetrics metrics = measure(printer.get(), selected);
  const std::vector<PrintOperation> operations =
      layOutPrint(text, withTime(std::move(header)), metrics.linesPerPage);
  performJob(printer.get(), operations,
             Performer(printer.get(), selected, metrics.lineHeight, abortable, text,
                       pageCount(operations)));
}

}  // namespace scorvane
