#include "app/setup_commands.h"

#include "app/file_menu.h"
#include "app/shown_report.h"
#include "setup/edit_contestants_dialog.h"
#include "setup/setup_classes_dialog.h"
#include "setup/setup_contest_dialog.h"
#include "setup/setup_ids.h"
#include "setup/setup_teams_dialog.h"

namespace scorvane {

namespace {

template <typename Behaviour>
void runSetup(MainWindow& window, int resourceId) {
  Behaviour behaviour;
  runSetupOverWelcome(window, resourceId, behaviour);
  showContestTitle(window);
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

}  // namespace scorvane
