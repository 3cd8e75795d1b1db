#include "cli/program.h"

#include <cstdio>
#include <exception>

#include "cli/system.h"
#include "text/characters.h"

namespace scorvane {

namespace {

// A file or another program gets every byte; a terminal obeys some.
bool print(std::string_view text) {
  std::string shown;
  if (isOutputTerminal()) text = shown = withoutCommands(text);
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  return std::fflush(stdout) == 0 && written;
}

}  // namespace

std::string remark(const char* program, const std::string& text) {
  return withoutCommands(withoutControlCharacters(std::string(program) + ": " + text)) + "\n";
}

CliResult refuseUsage(const char* program, const std::string& reason) {
  return {kWrongUsage, "",
          remark(program, contestText(reason)) + program + " --help explains everything.\n"};
}

int runProgram(const char* program, int argc, char** argv,
               CliResult (*answer)(const CommandLine& arguments)) {
  try {
    makeStandardOutputBinary();
    const std::vector<std::string> words = commandLineWords(argc, argv);
    CliResult result = answer({words.begin(), words.end()});
    if (!print(result.output)) {
      result.status = kFailed;
      result.error += std::string(program) + ": the report cannot be written to standard output\n";
    }
    std::fputs(result.error.c_str(), stderr);
    return result.status;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", program, error.what());
    return kFailed;
  }
}

}  // namespace scorvane
