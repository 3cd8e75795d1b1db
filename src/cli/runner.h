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
  /// What the reports were made of. Handed on so that the program can end without taking it apart.
  Contest contest;
};

inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;

/// Follows the options; contest files are read from, and --all writes to, `files`. The folder of
/// --all must exist.
[[nodiscard]] CliResult runCli(const CliOptions& options, FileSystem& files);

/// What a wrong command line comes to.
[[nodiscard]] CliResult refuseUsage(const UsageError& error);

}  // namespace scorvane
