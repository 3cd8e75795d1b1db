// Commands that concern the window more than the contest: copying, leaving, help.
#pragma once

#include <string>

#include "app/main_window.h"

namespace scorvane {

/// Puts the whole report text on the clipboard and says so, or says why it could not.
void copyReportToClipboard(MainWindow& window);
void exitCommand(MainWindow& window);
void helpCommand(MainWindow& window);
void aboutCommand(MainWindow& window);
void fontCommand(MainWindow& window);

/// The fields of a font, one a line.
[[nodiscard]] std::string fontFieldsText(const FontFields& font);

}  // namespace scorvane
