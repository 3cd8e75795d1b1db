// Does what scorvane-report is asked.
#pragma once

#include <string>

#include "cli/options.h"
#include "storage/file.h"

namespace scorvane {

/// What the program leaves behind: both texts are to be printed, then it ends with the status.
struct CliResult {
  int status = 0;
  std::string output;
  std::string error;
};

inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;
inline constexpr int kThingsToLookAt = 4;

/// Follows the options; contest files are read from, and --all writes to, `files`. The folder of
/// --all is made once the contest was read; every report is tried.
[[nodiscard]] CliResult runCli(const CliOptions& options, FileSystem& files);

/// What a command line that cannot be followed comes to.
[[nodiscard]] CliResult refuseUsage(const std::string& reason);

}  // namespace scorvane
