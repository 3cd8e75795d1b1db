#include "app/entry_commands.h"

#include "app/shown_report.h"
#include "entry/lookup_dialog.h"
#include "entry/placings_dialog.h"
#include "entry/questions_dialog.h"
#include "entry/reasons_dialog.h"
#include "model/contest.h"
#include "view/report_text.h"

namespace {

template <typename Behaviour>
void runEntry(MainWindow& window, int resourceId) {
  Behaviour behaviour;
  runDialogOverWelcome(window, resourceId, behaviour);
}

}  // namespace

void lookUpScores(MainWindow& window) {
  runEntry<LookupDialog>(window, kLookupDialog);
}

void inputPlacings(MainWindow& window) {
  runEntry<PlacingsDialog>(window, kPlacingsDialog);
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
  runEntry<ReasonsDialog>(window, kReasonsDialog);
}

void inputQuestions(MainWindow& window) {
  runEntry<QuestionsDialog>(window, kQuestionsDialog);
}
