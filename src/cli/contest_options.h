// What scorvane-contest is asked on its command line.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "cli/import_command.h"
#include "cli/merge_command.h"

namespace scorvane {

struct ContestOptions {
  enum class Action { help, version, importRoster, merge };
  Action action = Action::help;
  std::string help;  ///< what --help prints, of the whole program or of a command
  ImportOptions importRoster;
  MergeOptions merge;
};

/// Reads the arguments behind the program's name. Returns why a command line cannot be followed, as
/// one sentence.
[[nodiscard]] std::optional<std::string> readContestOptions(
    std::span<const std::string_view> arguments, ContestOptions& options);

}  // namespace scorvane
