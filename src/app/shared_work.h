// What others save to the contest's file, as the main window's commands see it.
#pragma once

#include "app/main_window.h"

namespace scorvane {

/// Takes in what others have saved. To be called before anything shows or changes the contest, and
/// when a dialog has closed.
void lookForOthersWork(MainWindow& window);

/// Says what a save has met, if anything, and shows the list of what is to be looked after behind
/// the report on screen, or instead of the welcome text. To be called when a command has ended.
/// Whether there was any.
bool tellNews(MainWindow& window);

}  // namespace scorvane
