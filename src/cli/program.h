// What the console programs have in common: how they start, print and end.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace scorvane {

/// What the program leaves behind: both texts are to be printed, then it ends with the status.
struct CliResult {
  int status = 0;
  std::string output;
  std::string error;
};

inline constexpr const char* kReportProgram = "scorvane-report";
inline constexpr const char* kContestProgram = "scorvane-contest";

inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;
inline constexpr int kThingsToLookAt = 4;

/// A line for standard error. What it quotes of files and names can neither end it nor command a
/// terminal.
[[nodiscard]] std::string remark(const char* program, const std::string& text);

/// What a command line that cannot be followed comes to. `program` is the program's name.
[[nodiscard]] CliResult refuseUsage(const char* program, const std::string& reason);

using CommandLine = std::vector<std::string_view>;

/// The body of main(): has the arguments behind the program's name answered, prints what comes of
/// it, and returns the status to end with. Paths among the arguments are as FileSystem takes them.
int runProgram(const char* program, int argc, char** argv,
               CliResult (*answer)(const CommandLine& arguments));

}  // namespace scorvane
