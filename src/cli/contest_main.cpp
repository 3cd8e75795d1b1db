// scorvane-contest: changes contest files without a window.
#include "cli/contest_options.h"
#include "cli/contest_runner.h"
#include "cli/program.h"

namespace scorvane {

namespace {

CliResult answer(const CommandLine& arguments) {
  ContestOptions options;
  if (const auto refusal = readContestOptions(arguments, options)) {
    return refuseUsage(kContestProgram, *refusal);
  }
  return runContestTool(options, systemFiles());
}

}  // namespace

}  // namespace scorvane

int main(int argc, char** argv) {
  return scorvane::runProgram(scorvane::kContestProgram, argc, argv, scorvane::answer);
}
