// What scorvane-contest merge ends with, prints and writes.
#include "cli/merge_command.h"

#include <gtest/gtest.h>

#include "cli/contest_options.h"
#include "cli/contest_runner.h"
#include "storage/contest_writer.h"
#include "tests/cli/answer_log.h"
#include "tests/storage/memory_files.h"
#include "tests/support/contest_builder.h"

namespace scorvane {

namespace {

/// Letters of Ann and Bob, "-" where there is none.
std::string fair(const char* letters, const char* className = "Hogs") {
  ContestBuilder fair;
  fair.addClass({.name = className, .official = 'B'}).team("Elm", "", {"Ann", "Bob", "", ""});
  for (const int k : {0, 1}) {
    if (letters[k] != '-') fair.placings(101 + k, std::string(1, letters[k]));
  }
  return writeContest(fair.contest);
}

TEST(MergeCommand, EndsWithWhatIsToBeLookedAfter) {
  struct Case {
    const char* line;
    int status;
    const char* letters;  ///< in the file that is written; "" when nothing is
    const char* says;
  };
  for (const auto& [line, status, letters, says] : std::initializer_list<Case>{
           {"ours|theirs|--into|out", 0, "AB", "1  scores brought in\n"},
           {"theirs|ours|--into|out", 0, "AB", "1  scores brought in\n"},
           {"ours|typo|--into|out", 3, "AB", "1  scores differ; ours stay\n"},
           {"ours|theirs|--into|ours", 0, "AB", "Before        Now"},
           {"ours|other|--into|out", 3, "A-", "2  classes left out\n"},
           {"ours|theirs|--base|none|--into|out", 0, "AB", "0  values differ"},
           {"ours|typo|--base|none|--into|out", 3, "AB", "1  values differ; ours stay\n"},
           {"typo|none|--base|typo|--into|typo", 0, "--", "0  values differ"},
           {"gone|ours|--into|out", 1, "", "'gone': it does not exist or cannot be opened"},
           {"ours|gone|--into|out", 1, "", "'gone': it does not exist or cannot be opened"},
           {"ours|theirs|--base|gone|--into|out", 1, "", "cannot read 'gone'"},
           {"ours|theirs|--base|other|--into|out", 1, "", "'ours' and 'other' are different"},
           {"none|other|--base|none|--into|out", 1, "", "'other' and 'none' are different"},
           {"ours|theirs|--into|locked", 1, "", "cannot write 'locked'"},
           {"ours|theirs", 2, "", "--into is required"},
           {"ours|--into|out", 2, "", "THEIRS is required"}}) {
    MemoryFiles disk;
    disk.readOnlyPath = "locked";
    for (const auto& [path, content] : {std::pair("none", fair("--")),
                                        {"ours", fair("A-")},
                                        {"theirs", fair("-B")},
                                        {"typo", fair("CB")},
                                        {"other", fair("CD", "Ewes")},
                                        {"locked", fair("--")}}) {
      disk.files[path] = {content, true};
    }
    auto wanted = disk.files;
    ContestOptions options;
    const std::string words = "merge|" + std::string(line);
    const auto refusal = readContestOptions(wordsOf(words), options);
    const CliResult result =
        refusal ? refuseUsage(kContestProgram, *refusal) : runContestTool(options, disk);
    EXPECT_EQ(result.status, status) << line;
    EXPECT_NE((result.output + result.error).find(says), std::string::npos)
        << line << result.output;
    EXPECT_EQ(result.output.empty(), *letters == '\0') << line;
    if (*letters != '\0') wanted[words.substr(words.rfind('|') + 1)].content = fair(letters);
    EXPECT_EQ(disk.files.size(), wanted.size()) << line;
    for (const auto& [path, file] : wanted)
      EXPECT_EQ(disk.files[path].content, file.content) << line;
  }
}

}  // namespace

}  // namespace scorvane
