// The commands of the Setup and Score menus: dialogs over the welcome text.
#pragma once

#include "app/main_window.h"

namespace scorvane {

// Each shows the contest's title afterwards, as the dialog may have changed the contest's name or
// given it a file.
void runSetupContest(MainWindow& window);
void runSetupClasses(MainWindow& window);
void runSetupTeams(MainWindow& window);
void runEditContestants(MainWindow& window);

/// Asks, draws the reasons order anew with the clock as seed, saves and shows the order. When the
/// operator declines or no order can be made, nothing changes and the report on screen stays.
void runGenerateReasonsOrder(MainWindow& window);
/// Runs the editor, then shows the order.
void runEditReasonsOrder(MainWindow& window);

void lookUpScores(MainWindow& window);
void inputPlacings(MainWindow& window);
/// Needs a reasons order; without one it says so, over the welcome text, instead of opening.
void inputReasons(MainWindow& window);
void inputQuestions(MainWindow& window);

}  // namespace scorvane
