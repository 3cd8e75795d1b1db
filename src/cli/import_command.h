// scorvane-contest import: teams and contestants of a sheet come into a contest file.
#pragma once

#include <optional>
#include <string>

#include "cli/program.h"
#include "storage/file.h"

namespace scorvane {

struct ImportOptions {
  std::string roster;               ///< path of the sheet
  std::string contest;              ///< path of the contest file
  std::optional<std::string> into;  ///< where the contest goes instead
  bool dryRun = false;
  bool skipProblems = false;
};

inline constexpr int kDoneWithoutProblems = 3;

[[nodiscard]] CliResult runImport(const ImportOptions& options, FileSystem& files);

}  // namespace scorvane
