// Does what scorvane-contest is asked.
#pragma once

#include "cli/contest_options.h"
#include "cli/program.h"
#include "storage/file.h"

namespace scorvane {

[[nodiscard]] CliResult runContestTool(const ContestOptions& options, FileSystem& files);

}  // namespace scorvane
