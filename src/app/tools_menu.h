// The Tools menu: looking after the contest besides the day's work.
#pragma once

#include "app/main_window.h"

namespace scorvane {

/// Runs the dialog and shows what it moved, exchanged or cleared.
void runMoveCards(MainWindow& window);

/// Runs the Earlier Saves dialog and shows the report of differences it was asked for. After going
/// back the welcome text is shown, as the old report told of another contest.
void runEarlierSaves(MainWindow& window);

}  // namespace scorvane
