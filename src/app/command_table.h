// Every command of the program: the main window dispatches from this table, scorvane-report lists
// and runs its reports from it, and the menu is held against it.
#pragma once

#include <span>
#include <string_view>
#include <variant>

#include "app/main_window.h"
#include "app/shown_report.h"

namespace scorvane {

struct Command {
  int id = 0;
  std::string_view menu;
  std::string_view caption;
  /// What choosing it in the menu does: an action of its own, or showing a report.
  std::variant<void (*)(MainWindow& window), Report> does;

  /// The caption without the dots of a command that asks first.
  [[nodiscard]] constexpr std::string_view name() const {
    return caption.substr(0, caption.size() - (caption.ends_with(" ...") ? 4 : 0));
  }
  /// The report that the command shows; null when it does something else.
  [[nodiscard]] const Report* report() const { return std::get_if<Report>(&does); }
};

/// All commands, in menu order.
[[nodiscard]] std::span<const Command> commandTable();

/// The command of an id; null when there is none.
[[nodiscard]] const Command* findCommand(int id);

/// Runs a command of the menu; an unknown one does nothing.
void runCommand(int id, MainWindow& window);

}  // namespace scorvane
