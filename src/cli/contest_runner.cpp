#include "cli/contest_runner.h"

namespace scorvane {

using Action = ContestOptions::Action;

CliResult runContestTool(const ContestOptions& options, FileSystem& files) {
  switch (options.action) {
    case Action::version:
      return {0, std::string(kContestProgram) + " " SCORVANE_VERSION "\n", ""};
    case Action::importRoster:
      return runImport(options.importRoster, files);
    case Action::merge:
      return runMerge(options.merge, files);
    case Action::help:
      break;
  }
  return {0, options.help, ""};
}

}  // namespace scorvane
