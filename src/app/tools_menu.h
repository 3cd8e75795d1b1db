// The Tools menu: looking after the contest besides the day's work.
#pragma once

#include "app/main_window.h"

namespace scorvane {

/// Runs the Import Roster dialog; after an import the Team Report is shown.
void runImportRoster(MainWindow& window);

/// Runs the dialog and shows what it moved, exchanged or cleared.
void runMoveCards(MainWindow& window);

/// Runs the Earlier Saves dialog and shows the report of differences it was asked for. After going
/// back the welcome text is shown, as the old report told of another contest.
void runEarlierSaves(MainWindow& window);

/// Asks for another file of the contest, takes over the scores that are missing here after the
/// operator agreed, and shows what was brought in and what differs.
void runBringInScores(MainWindow& window);

}  // namespace scorvane
