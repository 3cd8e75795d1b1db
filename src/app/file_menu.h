// The main window's part in opening and saving contests: start-up, the File menu's contest
// commands, the title bar. The files themselves are the business of session/contest_file.h.
#pragma once

#include <string>
#include <string_view>

#include "app/main_window.h"

namespace scorvane {

/// The program's name for the title bar, out of the resources; at most kMaxTitle bytes of it are
/// used.
void setProgramTitle(std::string title);
inline constexpr std::size_t kMaxTitle = 499;

/// Sets the title bar to program, file path and contest name; cut to kMaxTitle bytes.
void showContestTitle(MainWindow& window);

/// Makes the contest the program starts with: a new one with its group letters.
void prepareContest();

/// The path in a command line: what is between quotes, or else all of it, blanks inside included.
/// "" when there is none.
[[nodiscard]] std::string contestPath(std::string_view commandLine);

/// Opens the contest that the command line names, if it names one.
void openContestOfCommandLine(MainWindow& window, std::string_view commandLine);

/// Opens a contest file and shows it; a new contest, after a message, when it cannot be read.
void openContestFile(MainWindow& window, const std::string& path);

// The commands.
void newContestCommand(MainWindow& window);
void openContestCommand(MainWindow& window);
void saveContestCommand(MainWindow& window);
void saveContestAsCommand(MainWindow& window);

}  // namespace scorvane
