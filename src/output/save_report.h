// Keeping the report on screen as a plain text file.
#pragma once

#include "session/open_contest.h"
#include "storage/file.h"
#include "ui/window.h"

namespace scorvane {

/// Writes reportText(), with CR LF line ends, to a text file that the operator chooses. Nothing is
/// said, and the file chosen stays as it was, when that fails.
void saveReport(Window& owner, FileSystem& files);

}  // namespace scorvane
