#include "app/dialog_commands.h"

#include <ctime>

#include "app/contest_file_commands.h"
#include "app/shown_report.h"
#include "entry/lookup_dialog.h"
#include "entry/placings_dialog.h"
#include "entry/questions_dialog.h"
#include "entry/reasons_dialog.h"
#include "reasons/reasons_order_edit_dialog.h"
#include "reasons/reasons_order_generation.h"
#include "reasons/reasons_order_report.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "setup/edit_contestants_controls.h"
#include "setup/edit_contestants_dialog.h"
#include "setup/setup_classes_controls.h"
#include "setup/setup_classes_dialog.h"
#include "setup/setup_contest_controls.h"
#include "setup/setup_contest_dialog.h"
#include "setup/setup_teams_controls.h"
#include "setup/setup_teams_dialog.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

template <typename Behaviour>
void runSetup(MainWindow& window, int resourceId) {
  Behaviour behaviour;
  runDialogOverWelcome(window, resourceId, behaviour);
  showContestTitle(window);
}

void showReasonsOrder(MainWindow& window) {
  showReport(window, reasonsOrderReport(currentContest(), ReasonsOrderForm::plain));
}

}  // namespace

void runSetupContest(MainWindow& window) {
  runSetup<SetupContestDialog>(window, setup_contest::kDialog);
}

void runSetupClasses(MainWindow& window) {
  runSetup<SetupClassesDialog>(window, setup_classes::kDialog);
}

void runSetupTeams(MainWindow& window) {
  runSetup<SetupTeamsDialog>(window, setup_teams::kDialog);
}

void runEditContestants(MainWindow& window) {
  runSetup<EditContestantsDialog>(window, edit_contestants::kDialog);
}

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
  showReasonsOrder(window);
}

void runEditReasonsOrder(MainWindow& window) {
  ReasonsOrderEditDialog dialog;
  runDialogOverWelcome(window, ReasonsOrderEditDialog::kResourceId, dialog);
  showReasonsOrder(window);
}

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
