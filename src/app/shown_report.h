// Putting reports before the operator, what they ask first, and the welcome text behind dialogs.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "app/main_window.h"
#include "model/contest.h"
#include "session/report_request.h"
#include "ui/dialog.h"

namespace scorvane {

/// A report and what has to be asked before it can be built.
struct Report {
  /// Returns nothing when the contest lacks what the report needs.
  std::optional<std::string> (*build)(const Contest& contest, const ReportRequest& request);
  /// Runs the report's dialog; returns nothing when it is cancelled. Null for a report that asks
  /// nothing.
  std::optional<ReportRequest> (*ask)(MainWindow& window) = nullptr;
  /// Whether a built text tells of something to look at. Null for a report that does not judge.
  bool (*warns)(std::string_view text) = nullptr;
};

// What reports ask.
std::optional<ReportRequest> askReasonsClass(MainWindow& window);
std::optional<ReportRequest> askRound(MainWindow& window);
std::optional<ReportRequest> askCustom(MainWindow& window);
/// Asks for another contest file, and says so when it cannot be read.
std::optional<ReportRequest> askOtherContest(MainWindow& window);

/// Asks what the report needs, builds it of the current contest and shows it. Without it the report
/// on screen stays.
void runReport(MainWindow& window, const Report& report);

/// Makes `report` the report text and shows it.
void showReport(MainWindow& window, std::string report);

/// Runs a score-entry dialog over the welcome text.
void runDialogOverWelcome(MainWindow& window, int resourceId, DialogBehaviour& behaviour);
/// The same with a dialog that changes the contest in other ways: whatever it stores is in the
/// recovery copy before its next event.
void runSetupOverWelcome(MainWindow& window, int resourceId, DialogBehaviour& behaviour);

}  // namespace scorvane
