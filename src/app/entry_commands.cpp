#include "app/entry_commands.h"

#include "app/shown_report.h"
#include "entry/entry_ids.h"
#include "entry/group_entry_dialog.h"
#include "entry/lookup_dialog.h"
#include "session/open_contest.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

void enterByGroup(MainWindow& window, const GroupEntry& entry) {
  GroupEntryDialog dialog(currentContest(), entry);
  runDialogOverWelcome(window, entry.resource, dialog);
}

}  // namespace

void lookUpScores(MainWindow& window) {
  LookupDialog dialog(currentContest());
  runDialogOverWelcome(window, IDD_LOOKUP, dialog);
}

void inputPlacings(MainWindow& window) {
  enterByGroup(window, kPlacingsEntry);
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
  enterByGroup(window, kReasonsEntry);
}

void inputQuestions(MainWindow& window) {
  enterByGroup(window, kQuestionsEntry);
}

}  // namespace scorvane
