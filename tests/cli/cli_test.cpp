// What scorvane-report answers to its command lines, as approved.
#include <gtest/gtest.h>

#include "cli/options.h"
#include "cli/runner.h"
#include "storage/contest_writer.h"
#include "tests/cli/answer_log.h"
#include "tests/storage/memory_files.h"
#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"

namespace scorvane {

namespace {

// `fair.scv` has three classes, the second with reasons, in two categories; `bare.scv` has nobody
// who could give reasons, and two files cannot be read.
struct ContestFiles : MemoryFiles {
  ContestFiles() {
    ContestBuilder bare;
    bare.addClass({.name = "Ewes", .reasons = true});
    files["bare.scv"].content = writeContest(bare.contest);
    ContestBuilder fair;
    fair.contest.settings.numToReport = 1;
    fair.contest.settings.reportPercent = true;
    fair.categories({"Beef", "Swine"});
    fair.addClass({.name = "Heifers"}).addClass({.name = "Gilts", .reasons = true, .category = 1});
    fair.addClass({.name = "Barrows", .category = 1});
    fair.team("Team", "Coach", {"Ann", "Bob", "Cy", "Dee"});
    fair.placings(101, "AAB").placings(102, "BAA");
    fair.contest.reasonsPlace[101] = {0, 0};
    const std::string bytes = writeContest(fair.contest);
    files["fair.scv"].content = bytes;
    files["damaged.scv"].content = "not a contest\r\n";
    files["count.scv"].content = bytes;
    files["count.scv"].content.replace(bytes.find("Scores~~~~~\r\n12"), 15, "Scores~~~~~\r\n11");
  }
};

CliResult run(std::string_view line, FileSystem& files) {
  CliOptions options;
  if (const auto refusal = readOptions(wordsOf(line), options))
    return refuseUsage(kReportProgram, *refusal);
  return runCli(options, files);
}

TEST(Cli, AnswersAsApproved) {
  ContestFiles disk;
  std::string log;
  for (const char* line :
       {// Reports go by number or caption; values follow or stand behind "=".
        "fair.scv|32796", "bare.scv|high team OVERALL|--round|1|32862", "fair.scv|32862|--round=3",
        "fair.scv|32843|--class|2",
        "--title|-x-|fair.scv|--classes=3,1|32800|--kind|placings|--number=0|--team",
        "fair.scv|32800|--number|50|--percent|--kind=Reasons|--title=",
        "fair.scv|32800|--number=50%|--kind|QUESTIONS|--classes|2",
        // A category proposes its name and classes.
        "fair.scv|32800|--category|Swine",
        "fair.scv|32800|--classes|3,2,3|--title|Swine|--number|4",
        "fair.scv|32800|--category|Beef|--classes|2,3", "fair.scv|32800",
        "fair.scv|32800|--classes|1,,2"}) {
    const CliResult result = run(line, disk);
    log += answered(line, result);
  }
  expectApproved(log, "cli/answers.txt");
  // Things to look at are told by the status of Contest Check alone.
  const CliResult check = run("fair.scv|33015", disk);
  const CliResult twice = run("fair.scv|33015|33015", disk);
  EXPECT_EQ(twice.output, check.output + check.output);
  EXPECT_EQ(std::pair(check.status, twice.status), std::pair(4, 0));
  EXPECT_EQ(run("--version", disk).output, "scorvane-report " SCORVANE_VERSION "\n");
  EXPECT_EQ(run("fair.scv|--help", disk).output, usageText());
  EXPECT_NE(usageText().find("\nCustom/Category Report:\n  --title"), std::string::npos);
}

TEST(Cli, SaysWhatIsMissingOrWrong) {
  ContestFiles disk;
  expectRefused(
      kReportProgram, run, disk, kFailed,
      {{"nowhere.scv|32796", "cannot read 'nowhere.scv': it does not exist or cannot be opened"},
       {"damaged.scv|32796",
        "cannot read 'damaged.scv': it is not a contest file, or is damaged (line 2)"},
       {"count.scv|32796",
        "cannot read 'count.scv': the number of scores in the file is not correct (line 28)"},
       {"--|--odd.scv|32796", "cannot read '--odd.scv': it does not exist or cannot be opened"},
       {"fair.scv|32843|--class|4", "there is no class 4; the contest has 3"},
       {"fair.scv|32843|--class|1", "class 1 has no reasons"},
       {"bare.scv|32843|--class|1", "the contest has no reasons order"},
       {"fair.scv|32862|--round|4", "there is no round 4; the contest has 3"},
       {"fair.scv|32800|--classes|1,4", "there is no class 4; the contest has 3"},
       {"fair.scv|32800|--category|Sheep", "the contest has no category 'Sheep'"}});
  expectRefused(
      kReportProgram, run, disk, kWrongUsage,
      {{"fair.scv|32800|--classes=", "--classes: Value  not in range 1 to 2147483647"},
       {"", "no contest file is named"},
       {"fair.scv", "no report is named"},
       {"fair.scv|99", "there is no report '99'; --list names all of them"},
       {"fair.scv|32771", "there is no report '32771'; --list names all of them"},
       {"fair.scv|-", "there is no report '-'; --list names all of them"},
       {"fair.scv|32796|32801|--round|1", "--round belongs to Round Verification Report"},
       {"fair.scv|32796|--clases=1", "there is no option '--clases'; did you mean --class?"},
       {"fair.scv|high indvidual overal",
        "there is no report 'high indvidual overal'; did you mean 'High Individual Overall'?"},
       {"fair.scv|32796|--class|1",
        "--class belongs to Reasons Score Sheets, Verify Reasons Scores"},
       {"fair.scv|32843", "'Reasons Score Sheets' needs --class"},
       {"fair.scv|32862", "'Round Verification Report' needs --round"},
       {"fair.scv|32862|--round", "--round: 1 required INT missing"},
       {"fair.scv|32862|--round|0", "--round: Value 0 not in range 1 to 2147483647"},
       {"fair.scv|32862|--round|2x", "--round: Value 2x not in range 1 to 2147483647"},
       {"fair.scv|32800|--kind|total",
        "--kind: 'total' is none of overall, placings, reasons and questions"},
       {"fair.scv|32800|--number|-1",
        "--number: '-1' is neither a number of rows, such as 10, nor a percentage, such as 25%"},
       {"fair.scv|32800|--team=yes", "team was given a disallowed flag override"},
       {"fair.scv|--publish|p.txt", "--publish needs the name of an .html file"},
       {"fair.scv|32796|--show|teams", "--show belongs to --publish"},
       {"fair.scv|--publish|p.html|--show|names",
        "--show: 'names' is none of awards, teams and cards"},
       {"fair.scv|--spreadsheet|s.ods", "--spreadsheet needs the name of an .xlsx or a .csv file"},
       {"fair.scv|32796|--all|out", "'32796' is too much: --all writes every report"},
       {"fair.scv|--all|out|--team", "--team belongs to Custom/Category Report"},
       {"fair.scv|--all=", "--all needs the name of a folder"}});
}

TEST(Cli, WritesEveryReportThatAsksNothing) {
  ContestFiles disk;
  const std::size_t before = disk.files.size();
  EXPECT_EQ(run("fair.scv|--all|out", disk).status, 0);
  std::string list;
  std::size_t reports = 0;
  for (const Command& command : commandTable()) {
    if (command.report() == nullptr) continue;
    list.append(std::to_string(command.id)).append("\t");
    list.append(command.caption.substr(0, command.caption.find(" ..."))).append("\n");
    if (command.report()->ask != nullptr) continue;
    ++reports;
    const std::string& text = disk.files["out/" + std::string(command.caption) + ".txt"].content;
    EXPECT_NE(text.find("\r\n"), std::string::npos) << command.caption;
  }
  EXPECT_EQ(run("--list", disk).output, list);
  EXPECT_TRUE(disk.files.contains("out/Category 2 - Swine - Teams.txt"));
  EXPECT_EQ(disk.files.size(), before + reports + 4);
  disk.stayBroken = true;
  disk.failingCall = disk.calls + 3;
  EXPECT_EQ(run("fair.scv|--all|out", disk).status, kFailed);
}

// Teams of numbers that nobody has make the lists long at little cost.
TEST(Cli, SaysThatCategoriesAreTooMany) {
  constexpr int kCategories = 240;
  ContestBuilder builder;
  for (int k = 0; k < kCategories; ++k) builder.addClass({.category = k});
  builder.contest.categories.assign(kCategories, "B");
  builder.contest.settings.totalNumPerTeam = 235;
  for (int t = 0; t < 310; ++t) builder.contest.teams[std::to_string(t)].members.assign(235, 2);
  MemoryFiles disk;
  disk.room = 8U << 20U;
  disk.files["many.scv"].content = writeContest(builder.contest);
  const CliResult result = run("many.scv|--all|out", disk);
  EXPECT_EQ(
      result.error,
      "scorvane-report: no category reports are written: the contest has too many categories\n");
  EXPECT_EQ(result.status, kFailed);
}

// A contest may have any name, also one that a table would have.
TEST(Cli, WritesPageAndSpreadsheetButNeverOverTheContest) {
  ContestFiles disk;
  EXPECT_EQ(run("fair.scv|--publish|p.HTM|--show|CARDS|--spreadsheet|s.csv", disk).output, "");
  EXPECT_NE(disk.files["p.HTM"].content.find("<h3>101 Ann</h3>"), std::string::npos);
  EXPECT_TRUE(disk.files["s.csv"].content.starts_with("\xEF\xBB\xBFNumber,Name,"));
  EXPECT_EQ(run("fair.scv|32796|--spreadsheet|s.xlsx", disk).output,
            run("fair.scv|32796", disk).output);
  EXPECT_TRUE(disk.files["s.xlsx"].content.starts_with("PK"));
  const std::string contest = disk.files["fair.scv"].content;
  disk.files["fair.csv"].content = contest;
  EXPECT_EQ(run("fair.csv|--spreadsheet|FAIR.csv", disk).status, kFailed);
  EXPECT_EQ(disk.files["fair.csv"].content, contest);
  disk.fill();
  for (const char* line : {"fair.scv|--publish|q.html", "fair.scv|--spreadsheet|q.xlsx"}) {
    const CliResult result = run(line, disk);
    EXPECT_EQ(result.status, kFailed);
    EXPECT_TRUE(result.error.starts_with("scorvane-report: cannot write 'q.")) << result.error;
  }
}

TEST(Cli, LeavesEveryFileWholeWheneverThePowerFails) {
  ContestFiles disk;
  for (const char* path : {"page.html", "scores.xlsx", "out/Entry Progress.txt"})
    disk.put(path, "old");
  for (const char* line : {"fair.scv|--publish|page.html|--show|cards", "fair.scv|--all|out",
                           "fair.scv|--spreadsheet|scores.xlsx"}) {
    expectWholeWheneverThePowerFails(run, disk, line);
  }
}

}  // namespace

}  // namespace scorvane
