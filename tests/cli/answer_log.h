// Answers to command lines, written down for an approved text or held against what is expected.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <string_view>

#include "cli/program.h"
#include "tests/storage/memory_files.h"

namespace scorvane {

/// The words of a command line, which are parted by bars.
inline CommandLine wordsOf(std::string_view line) {
  CommandLine words;
  for (std::size_t bar = 0; bar != std::string_view::npos && !line.empty();) {
    bar = line.find('|');
    words.push_back(line.substr(0, bar));
    line.remove_prefix(bar == std::string_view::npos ? 0 : bar + 1);
  }
  return words;
}

/// The line with its status, what is printed without blank lines, rules and the headings of
/// columns, and the first line of what is said of an error.
inline std::string answered(std::string_view line, const CliResult& result) {
  std::string log = std::to_string(result.status).append(" > ").append(line).append("\n");
  std::istringstream printed(result.output);
  for (std::string text; std::getline(printed, text);) {
    const bool isRule = text.find_first_not_of(" -|") == std::string::npos;
    if (!isRule && !text.starts_with("Place  ")) log += text + "\n";
  }
  const std::string error = result.error.substr(0, result.error.find('\n'));
  return error.empty() ? log : log + error + "\n";
}

/// Command lines and what a program says to them instead of writing or printing anything.
using Refusals = std::initializer_list<std::pair<const char*, const char*>>;

inline void expectRefused(const std::string& program,
                          CliResult (*run)(std::string_view, FileSystem&), MemoryFiles& disk,
                          int status, Refusals refusals) {
  const std::string help = status == kWrongUsage ? program + " --help explains everything.\n" : "";
  for (const auto& [line, error] : refusals) {
    const auto before = disk.files;
    const CliResult result = run(line, disk);
    EXPECT_EQ(result.error, program + ": " + error + "\n" + help);
    EXPECT_EQ(result.status, status) << line;
    EXPECT_EQ(result.output, "") << line;
    EXPECT_TRUE(disk.files == before) << line;
  }
}

/// The power fails at each operation of a command, and of what was not flushed then any part is on
/// the disk: every file is as it was in `old`, or as the command leaves it.
inline void expectWholeWheneverThePowerFails(CliResult (*run)(std::string_view, FileSystem&),
                                             const MemoryFiles& old, std::string_view line) {
  MemoryFiles before;
  for (const auto& [path, file] : old.files) before.put(path, file.content);
  MemoryFiles after;
  after.files = before.files;
  (void)run(line, after);
  int cuts = 0;
  for (bool isCut = true; isCut; ++cuts) {
    MemoryFiles cut;
    cut.files = before.files;
    isCut = cut.isCutAt(cuts + 1, [&] { (void)run(line, cut); });
    for (std::size_t torn = 0;; torn = 3 * torn + 1) {
      MemoryFiles disk;
      disk.files = cut.files;
      if (!disk.losePower(torn)) break;
      for (const auto& [path, file] : after.files) {
        const std::string& content = disk.files[path].content;
        EXPECT_TRUE(content == before.files[path].content || content == file.content)
            << line << ", " << path << " at " << cuts;
      }
    }
  }
  EXPECT_GT(cuts, 4) << line;
}

}  // namespace scorvane
