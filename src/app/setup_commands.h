// The commands that open the setup dialogs. Each ends by showing the contest's title, as the
// dialog may have changed the contest's name or given it a file.
#pragma once

#include "app/main_window.h"

namespace scorvane {

void runSetupContest(MainWindow& window);
void runSetupClasses(MainWindow& window);
void runSetupTeams(MainWindow& window);
void runEditContestants(MainWindow& window);

}  // namespace scorvane
