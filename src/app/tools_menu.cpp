#include "app/tools_menu.h"

#include <utility>
#include <vector>

#include "app/file_menu.h"
#include "app/shown_report.h"
#include "exchange/earlier_saves_dialog.h"
#include "exchange/exports.h"
#include "exchange/publish_dialog.h"
#include "reports/differences_report.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "text/report_marks.h"

namespace scorvane {

void runEarlierSaves(MainWindow& window) {
  std::vector<EarlierSave> saves;
  if (isKeepingWork()) saves = earlierSaves(sessionFiles(), currentFileName());
  if (saves.empty()) {
    window.show(currentFileName().empty()
                    ? "Nothing was left of contests without a file.  Open a contest to see its "
                      "earlier saves."
                    : "There are no earlier saves of this contest yet.",
                "Information");
    return;
  }
  EarlierSavesDialog dialog(std::move(saves));
  const int result = window.runDialog(IDD_EARLIER_SAVES, dialog);
  if (const auto& save = dialog.compared()) {
    showReport(window,
               differencesReport(currentContest(), save->contest,
                                 {"Differences between now and " + save->name, "Now", "Then"}));
  } else if (result == IDC_GO_BACK) {
    showReport(window, kWelcomeText);
  }
  showContestTitle(window);
  sayIfWorkIsNotKept(window);
}

void runPublishResults(MainWindow& window) {
  PublishDialog dialog;
  window.runDialog(IDD_PUBLISH, dialog);
}

void runExportScores(MainWindow& window) {
  exportScores(window, sessionFiles());
}

}  // namespace scorvane
