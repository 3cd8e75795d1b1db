// Does what scorvane-report is asked.
#pragma once

#include "cli/options.h"
#include "cli/program.h"
#include "storage/file.h"

namespace scorvane {

/// Follows the options; contest files are read from, and --all writes to, `files`. The folder of
/// --all is made once the contest was read; every report is tried.
[[nodiscard]] CliResult runCli(const CliOptions& options, FileSystem& files);

}  // namespace scorvane
