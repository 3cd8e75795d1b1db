// Opening and saving the open contest's file, with all that is asked and said on the way. What the
// main window then shows is up to its commands (app/file_menu.h).
#pragma once

#include <string>
#include <string_view>

#include "session/open_contest.h"
#include "ui/window.h"

namespace scorvane {

/// Makes the open contest a new one without a file, with the welcome text for a report.
void startNewContest();

/// Opens a contest file. Unsaved work that was kept of it is offered then, and the report tells
/// what came back; else it is the welcome text. When it cannot be read, says why, leaves a new
/// contest and returns false. A path of more than kMaxPathLength characters counts as that of a
/// missing file.
bool openContest(Window& owner, const std::string& path);

/// Opens a file that the operator chooses. Cancelling leaves a new contest and returns false.
bool openChosenContest(Window& owner);

/// Saves to the current file; asks for a name when the contest has none. When somebody else has
/// changed the file since it was read or written here, asks before it is replaced. A save that
/// fails leaves the old file whole and shows a message.
void saveCurrent(Window& owner);

/// Saves to a file that the operator chooses. Cancelling leaves the contest without a file.
void saveContestAs(Window& owner);

/// Puts a contest's bytes into a file other than the current one, safely; what it replaces becomes
/// an earlier save of that file. False when that failed.
[[nodiscard]] bool saveElsewhere(const std::string& path, std::string_view bytes);

/// The question for a contest's file.
[[nodiscard]] FileQuestion contestFileQuestion(FileQuestion::Purpose purpose);

}  // namespace scorvane
