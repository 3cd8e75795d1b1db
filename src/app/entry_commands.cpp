#include "app/entry_commands.h"

#include "app/shown_report.h"
#include "entry/lookup_dialog.h"
#include "entry/placings_dialog.h"
#include "entry/questions_dialog.h"
#include "entry/reasons_dialog.h"
#include "model/contest.h"
#include "session/open_contest.h"
#include "text/report_marks.h"

namespace scorvane {

void lookUpScores(MainWindow& window) {
  LookupDialog dialog;
  runDialogOverWelcome(window, kLookupDialog, dialog);
}

void inputPlacings(MainWindow& window) {
  GroupEntryDialog dialog = placingsDialog();
  runDialogOverWelcome(window, kPlacingsDialog, dialog);
}

void inputReasons(MainWindow& window) {
  if (currentContest().reasonsOrder.empty()) {
    showReport(window, kWelcomeText);
    window.show(
        "You must first generate a reasons order before entering reasons scores.\n"
        "Select the Generate Reasons Order option in the Setup menu to do this.",
        "Information");
    return;
  }
  ReasonsDialog dialog;
  runDialogOverWelcome(window, kReasonsDialog, dialog);
}

void inputQuestions(MainWindow& window) {
  GroupEntryDialog dialog = questionsDialog();
  runDialogOverWelcome(window, kQuestionsDialog, dialog);
}

}  // namespace scorvane
