// The commands of the Score menu.
#pragma once

#include "app/main_window.h"

namespace scorvane {

void lookUpScores(MainWindow& window);
void inputPlacings(MainWindow& window);
/// Needs a reasons order; without one it says so, over the welcome text, instead of opening.
void inputReasons(MainWindow& window);
void inputQuestions(MainWindow& window);

}  // namespace scorvane
