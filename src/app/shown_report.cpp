#include "app/shown_report.h"

#include <memory>
#include <utility>

#include "app/shared_work.h"
#include "reasons/reasons_class_dialog.h"
#include "reasons/reasons_ids.h"
#include "reports/round_verification_dialog.h"
#include "reports/round_verification_ids.h"
#include "results/custom_report_dialog.h"
#include "results/custom_report_ids.h"
#include "session/contest_file.h"
#include "session/data_folder.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "storage/contest_loader.h"
#include "text/report_marks.h"
#include "text/unicode.h"

namespace scorvane {

namespace {

/// Another behaviour, whose changes of the contest are kept as they come.
class KeptBehaviour : public DialogBehaviour {
 public:
  explicit KeptBehaviour(DialogBehaviour& behaviour) : behaviour_(behaviour) {}

  void onOpen(Dialog& dialog) override { behaviour_.onOpen(dialog); }
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override {
    behaviour_.onEvent(dialog, id, event);
    // Nothing is stored while somebody types.
    if (event == ControlEvent::clicked || event == ControlEvent::selectionChanged) contestChanged();
  }
  [[nodiscard]] bool usesUnicode() const override { return behaviour_.usesUnicode(); }
  void onClose(Dialog& dialog) override {
    behaviour_.onClose(dialog);
    contestChanged();
  }

 private:
  DialogBehaviour& behaviour_;
};

}  // namespace

std::optional<ReportRequest> askReasonsClass(MainWindow& window) {
  ReasonsClassDialog dialog(currentContest());
  window.runDialog(IDD_REASONS_CLASS, dialog);
  return dialog.request();
}

std::optional<ReportRequest> askRound(MainWindow& window) {
  RoundVerificationDialog dialog;
  window.runDialog(IDD_ROUND_VERIFICATION, dialog);
  return dialog.request();
}

std::optional<ReportRequest> askCustom(MainWindow& window) {
  CustomReportDialog dialog;
  window.runDialog(IDD_CUSTOM_REPORT, dialog);
  return dialog.request();
}

namespace {

// What is told where a contest is opened must be known before its scores are held against
// another's.
void tellOfOtherFile(Window& window, const std::string& path, const LoadedContest& loaded) {
  std::string told;
  if (!loaded.copy.empty()) {
    told += "It was left unfinished by a save, and its copy was read instead:\n" +
            shownPath(loaded.copy) + "\n";
  }
  if (!loaded.oddities.empty()) told += "It was read, but it may be damaged:\n" + loaded.oddities;
  if (!told.empty()) window.show("The file\n" + path + "\n\n" + told, "Information");
}

}  // namespace

std::optional<ReportRequest> askOtherContest(MainWindow& window) {
  const auto path = window.chooseFile(contestFileQuestion(FileQuestion::Purpose::open));
  if (!path) return std::nullopt;
  // Nothing would differ, and seem to be typed without a mistake.
  if (!currentFileName().empty() && reachesSameFile(sessionFiles(), *path, currentFileName())) {
    window.show("This is the file of the open contest.  Choose the other one.", "Error");
    return std::nullopt;
  }
  auto loading = loadContestFile(sessionFiles(), *path);
  auto* loaded = std::get_if<LoadedContest>(&loading);
  if (loaded == nullptr) {
    window.show("The file\n" + shownPath(*path) + "\nis missing, damaged or not a contest.",
                "Error");
    return std::nullopt;
  }
  tellOfOtherFile(window, shownPath(*path), *loaded);
  ReportRequest request;
  request.other = std::make_shared<const Contest>(std::move(loaded->contest));
  request.otherName = shownPath(path->substr(path->find_last_of("/\\") + 1));
  return request;
}

namespace {

// Others may have saved while the dialog was open. It is asked anew when that moved what it named.
std::optional<ReportRequest> askFor(MainWindow& window, const Report& report) {
  for (;;) {
    const auto classes = currentContest().classes;
    const auto categories = currentContest().categories;
    auto request = report.ask(window);
    if (!request) return std::nullopt;
    lookForOthersWork(window);
    const Contest& now = currentContest();
    if (now.classes == classes && now.categories == categories) return request;
  }
}

}  // namespace

void runReport(MainWindow& window, const Report& report) {
  const auto request = report.ask == nullptr ? ReportRequest{} : askFor(window, report);
  auto text = request ? report.build(currentContest(), *request) : std::nullopt;
  if (text) reportText() = std::move(*text);
  window.refreshReportView();
}

void showReport(MainWindow& window, std::string report) {
  reportText() = std::move(report);
  window.refreshReportView();
}

void runDialogOverWelcome(MainWindow& window, int resourceId, DialogBehaviour& behaviour) {
  showReport(window, kWelcomeText);
  window.runDialog(resourceId, behaviour);
  window.refreshReportView();
  sayIfWorkIsNotKept(window);
}

void runSetupOverWelcome(MainWindow& window, int resourceId, DialogBehaviour& behaviour) {
  KeptBehaviour kept(behaviour);
  runDialogOverWelcome(window, resourceId, kept);
}

}  // namespace scorvane
