// What scorvane-contest import answers to its command lines, as approved.
#include <gtest/gtest.h>

#include "cli/contest_options.h"
#include "cli/contest_runner.h"
#include "storage/contest_writer.h"
#include "storage/safe_save.h"
#include "tests/cli/answer_log.h"
#include "tests/storage/contest_text.h"
#include "tests/storage/memory_files.h"
#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"

namespace scorvane {

namespace {

struct ImportFiles : MemoryFiles {
  ImportFiles() {
    ContestBuilder fair;
    fair.addClass({}).team("Elm", "", {"Ann", "Bob", "", ""}).placings(101, "B");
    files["fair.scv"].content = writeContest(fair.contest);
    files["damaged.scv"].content = "not a contest\r\n";
    files["sheet.csv"].content = "Team,Name,Coach\nElm,Cy,Pat\nYew,Dee,\nYew,dee,\n";
    files["bad.csv"].content = "Team,Name\n,Cy\n";
    files["there.csv"].content = "Team,Name\nElm,ann\n";
    files["empty.csv"].content = "Team,Name\n\n";
  }
};

CliResult run(std::string_view line, FileSystem& files) {
  ContestOptions options;
  if (const auto refusal = readContestOptions(wordsOf(line), options)) {
    return refuseUsage(kContestProgram, *refusal);
  }
  return runContestTool(options, files);
}

TEST(Import, AnswersAsApproved) {
  std::string log;
  for (const char* line :
       {"import|sheet.csv|fair.scv", "import|sheet.csv|fair.scv|--skip-problems|--dry-run",
        "import|there.csv|fair.scv", "import|there.csv|fair.scv|--into|out.scv",
        "import|sheet.csv|new.scv|--skip-problems", "import|bad.csv|new.scv|--skip-problems",
        "import|empty.csv|fair.scv"}) {
    ImportFiles disk;
    const auto before = disk.files;
    const CliResult result = run(line, disk);
    log += answered(line, result);
    for (const auto& [path, file] : disk.files) {
      const auto old = before.find(path);
      if (old == before.end() || old->second.content != file.content)
        log += "written: " + path + "\n";
    }
  }
  expectApproved(log, "cli/imports.txt");
  ImportFiles disk;
  EXPECT_EQ(run("--version", disk).output, "scorvane-contest " SCORVANE_VERSION "\n");
  EXPECT_NE(run("import|--help", disk).output.find("--skip-problems"), std::string::npos);
}

TEST(Import, SaysWhatIsMissingOrWrongAndWritesNothing) {
  ImportFiles disk;
  expectRefused(kContestProgram, run, disk, kFailed,
                {{"import|none.csv|fair.scv", "cannot read 'none.csv'"},
                 {"import|sheet.csv|damaged.scv",
                  "cannot read 'damaged.scv': it is not a contest file, or is damaged (line 2)"}});
  expectRefused(
      kContestProgram, run, disk, kWrongUsage,
      {{"", "no command is named"},
       {"imort", "there is no command 'imort'; did you mean import?"},
       {"import", "ROSTER is required"},
       {"import|a", "CONTEST is required"},
       {"import|a|b|c", "'c' is too much"},
       {"import|a|b|--drry-run", "there is no option '--drry-run'; did you mean --dry-run?"},
       {"import|a|b|--into", "--into: 1 required OUT missing"},
       {"import|a|b|--dry-run=no", "dry-run was given a disallowed flag override"},
       {"--dry-run|import|a|b", "there is no option '--dry-run'; did you mean --dry-run?"}});
}

// A disk that breaks at any step leaves the old contest or the new one, and a status that tells.
TEST(Import, WritesAllOrNothing) {
  ImportFiles fine;
  const std::string old = fine.files["fair.scv"].content;
  EXPECT_EQ(run("import|sheet.csv|fair.scv|--skip-problems", fine).status, kDoneWithoutProblems);
  const std::string imported = fine.files["fair.scv"].content;
  EXPECT_NE(imported, old);
  for (int call = 1; call <= fine.calls; ++call) {
    ImportFiles disk;
    disk.failingCall = call;
    disk.stayBroken = true;
    const CliResult result = run("import|sheet.csv|fair.scv|--skip-problems", disk);
    EXPECT_EQ(disk.files["fair.scv"].content, result.status == kFailed ? old : imported) << call;
  }
}

// What somebody else saved meanwhile is not written over.
TEST(Import, RespectsWhatOthersSaved) {
  struct SharedFiles : ImportFiles {
    Claim lockForSaving(const std::string& path, int /*patience*/) override {
      files[path].content = "saved meanwhile";
      return {FileOutcome::done, nullptr};
    }
  } disk;
  const CliResult result = run("import|there.csv|fair.scv|--into|out.scv", disk);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(run("import|sheet.csv|fair.scv|--skip-problems", disk).status, kFailed);
  EXPECT_EQ(disk.files["fair.scv"].content, "saved meanwhile");
}

// What a save in place left unfinished is opened from its copy, told of, and put right.
TEST(Import, FinishesWhatWasLeftUnfinished) {
  ImportFiles disk;
  const std::string old = disk.files["fair.scv"].content;
  disk.hasOtherNames = true;
  EXPECT_TRUE(disk.isCutAt(
      10, [&] { EXPECT_FALSE(saveSafely(disk, "fair.scv", replaced(old, "Elm", "Oak"))); }));
  disk.hasOtherNames = false;
  const std::size_t files = disk.files.size();
  const std::string refused = run("merge|fair.scv|damaged.scv|--into|out.scv", disk).error;
  EXPECT_NE(refused.find("never saved to its end"), std::string::npos) << refused;
  const CliResult result = run("import|sheet.csv|fair.scv|--skip-problems", disk);
  EXPECT_EQ(result.status, kDoneWithoutProblems) << result.error;
  EXPECT_NE(result.error.find("never saved to its end"), std::string::npos);
  EXPECT_NE(disk.files["fair.scv"].content.find("Oak\t"), std::string::npos);
  EXPECT_EQ(disk.files.size(), files - 1) << "the copy is done with";
}

TEST(Import, LeavesEveryFileWholeWheneverThePowerFails) {
  ImportFiles disk;
  disk.put("theirs.scv", replaced(disk.files["fair.scv"].content, "Elm", "Oak"));
  for (const char* line : {"import|sheet.csv|fair.scv|--skip-problems",
                           "merge|fair.scv|theirs.scv|--base|fair.scv|--into|fair.scv"}) {
    expectWholeWheneverThePowerFails(run, disk, line);
  }
}

}  // namespace

}  // namespace scorvane
