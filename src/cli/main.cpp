// scorvane-report: prints any report of a contest file without a window.
#include "cli/options.h"
#include "cli/program.h"
#include "cli/runner.h"
#include "cli/system.h"

namespace scorvane {

namespace {

CliResult answer(const CommandLine& arguments) {
  CliOptions options;
  if (const auto refusal = readOptions(arguments, options)) {
    return refuseUsage(kReportProgram, *refusal);
  }
  if (options.title) options.title = contestText(*options.title);
  if (options.category) options.category = contestText(*options.category);
  return runCli(options, systemFiles());
}

}  // namespace

}  // namespace scorvane

int main(int argc, char** argv) {
  return scorvane::runProgram(scorvane::kReportProgram, argc, argv, scorvane::answer);
}
