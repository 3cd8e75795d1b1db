// Finding recovery copies that an earlier run left, and what becomes of them.
#pragma once

#include <optional>
#include <string>

#include "storage/file.h"
#include "ui/window.h"

namespace scorvane {

/// To be called when a contest was opened. Asks whether to bring back work that grew from this very
/// file, also when the file was renamed or moved since; with Yes it is in the contest, which is
/// saved, and the result is a report of what came back. Everything else that was kept of this
/// contest goes to the earlier saves. A copy in use by a running program is left alone.
[[nodiscard]] std::optional<std::string> offerRecovery(Window& owner);

/// Puts what was left of contests without a file among the earlier saves.
void keepUntitledRests(FileSystem& files);

}  // namespace scorvane
