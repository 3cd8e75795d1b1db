#include "cli/program.h"

#include <cstdio>
#include <exception>

#include "cli/system.h"

namespace scorvane {

namespace {

bool print(std::string_view text) {
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  return std::fflush(stdout) == 0 && written;
}

}  // namespace

CliResult refuseUsage(const char* program, const std::string& reason) {
  const std::string name = program;
  return {kWrongUsage, "", name + ": " + reason + "\n" + name + " --help explains everything.\n"};
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
