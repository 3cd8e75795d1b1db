// Every command of the program: the main window dispatches from this table, scorvane-report lists
// and runs its reports from it, and the menu is held against it.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "app/main_window.h"
#include "app/report_request.h"
#include "model/contest.h"

namespace scorvane {

/// What a report asks for before it can be built.
enum class ReportQuestion { nothing, reasonsClass, round, custom };

struct Command {
  int id = 0;
  std::string_view menu;
  std::string_view caption;
  /// What the menu command does. When null, the command shows its report, which then asks nothing.
  void (*run)(MainWindow& window) = nullptr;
  /// The report that the command makes; null for commands that make none, or that change the
  /// contest first. Gives nothing when the contest lacks what the report needs.
  std::optional<std::string> (*report)(const Contest& contest,
                                       const ReportRequest& request) = nullptr;
  ReportQuestion question = ReportQuestion::nothing;
};

/// All commands, in menu order.
[[nodiscard]] std::span<const Command> commandTable();

/// The command of an id; null when there is none.
[[nodiscard]] const Command* findCommand(int id);

/// Runs a command of the menu; an unknown one does nothing.
void runCommand(int id, MainWindow& window);

}  // namespace scorvane
