// Resetting, saving and loading the current contest, as commands and dialogs use them.
#pragma once

#include <string>
#include <string_view>

#include "session/open_contest.h"
#include "ui/window.h"

namespace scorvane {

/// Makes the current contest a new, empty one and empties the report text. The current file name
/// stays.
void resetContest();

/// Writes the contest to the current file, or, with `askForName`, to a file the operator chooses;
/// the name is forgotten before asking, so a cancelled choice leaves the contest untitled. When
/// somebody else has changed the current file since it was read or written here, the operator is
/// asked before it is replaced. A save that fails leaves the old file whole and shows a message
/// ("File Save Error").
void saveContest(Window& owner, bool askForName);

/// Saves to the current file; asks for a name when the contest is untitled.
void saveCurrent(Window& owner);

/// Puts a contest's bytes into a file other than the current one, safely; what it replaces becomes
/// an earlier save of that file. False when that failed.
[[nodiscard]] bool saveElsewhere(const std::string& path, std::string_view bytes);

/// Asks for a contest's file.
[[nodiscard]] FileQuestion contestFileQuestion(FileQuestion::Purpose purpose);

/// Reads a file into the current contest: the one named by currentFileName() with `useGivenPath`,
/// otherwise one that the operator chooses. Unsaved work that was kept of it is offered then; the
/// report text tells what came back, or is the welcome. False on any failure, and when cancelled; a
/// message has then been shown (not for a cancelled choice), and the contest is a new one without a
/// file name.
bool loadContest(Window& owner, bool useGivenPath);

}  // namespace scorvane
