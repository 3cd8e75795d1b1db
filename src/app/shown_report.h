// Putting reports, and the welcome text behind dialogs, before the operator.
#pragma once

#include <optional>
#include <string>

#include "app/main_window.h"
#include "ui/dialog.h"

namespace scorvane {

/// Makes `report` the report text and shows it. Without a report nothing changes.
void showReport(MainWindow& window, std::optional<std::string> report);

/// Runs a score-entry dialog over the welcome text; gives the dialog's result.
int runDialogOverWelcome(MainWindow& window, int resourceId, DialogBehaviour& behaviour);
/// The same with a dialog that changes the contest in other ways: whatever it stores is in the
/// recovery copy before its next event.
int runSetupOverWelcome(MainWindow& window, int resourceId, DialogBehaviour& behaviour);

}  // namespace scorvane
