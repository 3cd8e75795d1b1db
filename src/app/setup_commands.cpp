#include "app/setup_commands.h"

#include "app/file_menu.h"
#include "app/shown_report.h"
#include "setup/edit_contestants_controls.h"
#include "setup/edit_contestants_dialog.h"
#include "setup/setup_classes_controls.h"
#include "setup/setup_classes_dialog.h"
#include "setup/setup_contest_controls.h"
#include "setup/setup_contest_dialog.h"
#include "setup/setup_teams_controls.h"
#include "setup/setup_teams_dialog.h"

namespace scorvane {

namespace {

template <typename Behaviour>
void runSetup(MainWindow& window, int resourceId) {
  Behaviour behaviour;
  runDialogOverWelcome(window, resourceId, behaviour);
  showContestTitle(window);
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

}  // namespace scorvane
