#include "app/shown_report.h"

#include <utility>

#include "session/open_contest.h"
#include "text/report_marks.h"

namespace scorvane {

void showReport(MainWindow& window, std::optional<std::string> report) {
  if (!report) return;
  reportText() = std::move(*report);
  window.refreshReportView();
}

int runDialogOverWelcome(MainWindow& window, int resourceId, DialogBehaviour& behaviour) {
  showReport(window, kWelcomeText);
  const int result = window.runDialog(resourceId, behaviour);
  window.refreshReportView();
  return result;
}

}  // namespace scorvane
