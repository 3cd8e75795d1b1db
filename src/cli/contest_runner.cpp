#include "cli/contest_runner.h"

namespace scorvane {

CliResult runContestTool(const ContestOptions& options, FileSystem& files) {
  switch (options.action) {
    case ContestOptions::Action::version:
      return {0, std::string(kContestProgram) + " " SCORVANE_VERSION "\n", ""};
    case ContestOptions::Action::importRoster:
      return runImport(options.importRoster, files);
    case ContestOptions::Action::merge:
      return runMerge(options.merge, files);
    case ContestOptions::Action::help:
      break;
  }
  return {0, options.help, ""};
}

}  // namespace scorvane
