// scorvane-report: prints any report of a contest file without a window.
#include <cstdio>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "cli/options.h"
#include "cli/runner.h"
#include "cli/system.h"
#include "text/characters.h"

namespace scorvane {

namespace {

CliResult answer(const std::vector<std::string_view>& arguments) {
  CliOptions options;
  if (const auto refusal = readOptions(arguments, options)) {
    return refuseUsage(contestText(*refusal));
  }
  if (options.title) options.title = contestText(*options.title);
  if (options.category) options.category = contestText(*options.category);
  return runCli(options, systemFiles());
}

// A file or another program gets every byte; a terminal obeys some.
bool print(std::string_view text) {
  std::string shown;
  if (isOutputTerminal()) text = shown = withoutCommands(text);
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  return std::fflush(stdout) == 0 && written;
}

int run(const std::vector<std::string_view>& arguments) {
  makeStandardOutputBinary();
  CliResult result = answer(arguments);
  if (!print(result.output)) {
    result.status = kFailed;
    result.error += "scorvane-report: the report cannot be written to standard output\n";
  }
  std::fputs(result.error.c_str(), stderr);
  return result.status;
}

}  // namespace

}  // namespace scorvane

int main(int argc, char** argv) {
  using namespace scorvane;
  try {
    const std::vector<std::string> words = commandLineWords(argc, argv);
    return run({words.begin(), words.end()});
  } catch (const std::exception& error) {
    std::fprintf(stderr, "scorvane-report: %s\n", error.what());
    return kFailed;
  }
}
