// Starting the program and the File menu's contest commands: which contest is open, and what the
// title bar says of it.
#pragma once

#include <string>
#include <string_view>

#include "app/main_window.h"

namespace scorvane {

/// The program's name as the title bar shows it, as the resources give it; at most kMaxTitle
/// bytes of it are used.
void setProgramTitle(std::string title);
inline constexpr std::size_t kMaxTitle = 499;

/// Sets the title bar to program, file path and contest name; cut to kMaxTitle bytes.
void showContestTitle(MainWindow& window);

/// Makes the contest the program starts with: a new one of today with its group letters.
void prepareContest();

/// The path that a command line names: without the quotes around it, or else all of it, blanks
/// inside included. "" when it names none.
[[nodiscard]] std::string contestPath(std::string_view commandLine);

/// Opens the contest that the command line names, if it names one.
void openContestOfCommandLine(MainWindow& window, std::string_view commandLine);

/// Opens a contest file; a new contest, after a message, when it cannot be read. A path of more
/// than kMaxPathLength bytes is refused: cut, it could be another file's.
void openContestFile(MainWindow& window, const std::string& path);

// The commands.
void newContestCommand(MainWindow& window);
void openContestCommand(MainWindow& window);
void saveContestCommand(MainWindow& window);
void saveContestAsCommand(MainWindow& window);

}  // namespace scorvane
