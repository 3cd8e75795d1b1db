#include "app/reasons_commands.h"

#include <ctime>

#include "app/shown_report.h"
#include "reasons/reasons_class_dialog.h"
#include "reasons/reasons_ids.h"
#include "reasons/reasons_order_edit_dialog.h"
#include "reasons/reasons_order_generation.h"
#include "reasons/reasons_reports.h"
#include "session/contest_file.h"
#include "session/open_contest.h"

namespace scorvane {

namespace {

std::optional<std::string> sheetAskedFor(const Contest& contest, const ReportRequest& request,
                                         ReasonsSheet sheet) {
  if (!request.classIndex) return std::nullopt;
  return reasonsSheet(contest, sheet, *request.classIndex);
}

void askForClassAndShowSheet(MainWindow& window, ReasonsSheet sheet) {
  ReasonsClassDialog dialog(currentContest());
  window.runDialog(IDD_REASONS_CLASS, dialog);
  if (const auto chosen = dialog.chosenClass()) {
    showReport(window, reasonsSheet(currentContest(), sheet, *chosen));
  }
}

}  // namespace

void runGenerateReasonsOrder(MainWindow& window) {
  if (!window.confirm("This will auto generate a new Reasons Order and overwrite any previous "
                      "edits to Reasons Order.  Continue?")) {
    return;
  }
  const auto seed = static_cast<std::uint32_t>(std::time(nullptr));
  if (const auto refusal = generateReasonsOrder(currentContest(), seed)) {
    window.show(*refusal, "Error");
    return;
  }
  saveCurrent(window);
  showReport(window, plainReasonsOrder(currentContest(), {}));
}

void runEditReasonsOrder(MainWindow& window) {
  ReasonsOrderEditDialog dialog;
  runSetupOverWelcome(window, IDD_REASONS_ORDER_EDIT, dialog);
  showReport(window, plainReasonsOrder(currentContest(), {}));
}

void showReasonsOrderSheet(MainWindow& window) {
  askForClassAndShowSheet(window, ReasonsSheet::order);
}

void showReasonsVerificationSheet(MainWindow& window) {
  askForClassAndShowSheet(window, ReasonsSheet::verification);
}

std::optional<std::string> plainReasonsOrder(const Contest& contest,
                                             const ReportRequest& /*request*/) {
  return reasonsOrderReport(contest, ReasonsOrderForm::plain);
}

std::optional<std::string> roomReasonsOrder(const Contest& contest,
                                            const ReportRequest& /*request*/) {
  return reasonsOrderReport(contest, ReasonsOrderForm::room);
}

std::optional<std::string> reasonsOrderSheet(const Contest& contest, const ReportRequest& request) {
  return sheetAskedFor(contest, request, ReasonsSheet::order);
}

std::optional<std::string> reasonsVerificationSheet(const Contest& contest,
                                                    const ReportRequest& request) {
  return sheetAskedFor(contest, request, ReasonsSheet::verification);
}

}  // namespace scorvane
