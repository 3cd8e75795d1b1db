#include "app/dialog_commands.h"

#include <ctime>

#include "app/file_menu.h"
#include "app/shown_report.h"
#include "entry/entry_ids.h"
#include "entry/group_entry_dialog.h"
#include "entry/lookup_dialog.h"
#include "reasons/reasons_ids.h"
#include "reasons/reasons_order_edit_dialog.h"
#include "reasons/reasons_order_generation.h"
#include "reasons/reasons_reports.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "setup/edit_contestants_dialog.h"
#include "setup/setup_classes_dialog.h"
#include "setup/setup_contest_dialog.h"
#include "setup/setup_ids.h"
#include "setup/setup_teams_dialog.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

template <typename Behaviour>
void runSetup(MainWindow& window, int resourceId) {
  Behaviour behaviour;
  runSetupOverWelcome(window, resourceId, behaviour);
  showContestTitle(window);
}

void enterByGroup(MainWindow& window, const GroupEntry& entry) {
  GroupEntryDialog dialog(currentContest(), entry);
  runDialogOverWelcome(window, entry.resource, dialog);
}

void showReasonsOrder(MainWindow& window) {
  showReport(window, reasonsOrderReport(currentContest(), ReasonsOrderForm::plain));
}

}  // namespace

void runSetupContest(MainWindow& window) {
  runSetup<SetupContestDialog>(window, IDD_SETUP_CONTEST);
}

void runSetupClasses(MainWindow& window) {
  runSetup<SetupClassesDialog>(window, IDD_SETUP_CLASSES);
}

void runSetupTeams(MainWindow& window) {
  runSetup<SetupTeamsDialog>(window, IDD_SETUP_TEAMS);
}

void runEditContestants(MainWindow& window) {
  runSetup<EditContestantsDialog>(window, IDD_EDIT_CONTESTANTS);
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
  contestChanged();
  saveCurrent(window);
  showReasonsOrder(window);
}

void runEditReasonsOrder(MainWindow& window) {
  ReasonsOrderEditDialog dialog;
  runSetupOverWelcome(window, IDD_REASONS_ORDER_EDIT, dialog);
  showReasonsOrder(window);
}

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
