#include "cli/runner.h"

#include <gtest/gtest.h>

#include "storage/contest_writer.h"
#include "tests/support/contest_builder.h"
#include "tests/support/temporary_folder.h"

namespace {

using Words = std::vector<std::string_view>;

std::string contestFile(const std::string& bytes) {
  // One folder a process: tests of several builds may run side by side.
  static const TemporaryFolder folder;
  const std::string path = folder.file("cli.scv");
  makeFile(path, bytes);
  return path;
}

// Three classes, the second with reasons, in two categories.
std::string smallContest() {
  ContestBuilder builder;
  builder.categories({"Beef", "Swine"});
  builder.addClass({"Heifers", false, false, 'A', {2, 3, 4}, 0});
  builder.addClass({"Gilts", true, false, 'A', {2, 3, 4}, 1});
  builder.addClass({"Barrows", false, false, 'A', {2, 3, 4}, 1});
  builder.team("Team", "Coach", {"Ann", "Bob", "Cy", "Dee"});
  builder.placings(101, "AAB").placings(102, "BAA");
  return contestFile(writeContest(builder.contest));
}

CliResult run(const std::string& contest, const Words& words) {
  Words all = {contest};
  all.insert(all.end(), words.begin(), words.end());
  const auto parsed = parseOptions(all);
  if (const auto* error = std::get_if<UsageError>(&parsed)) return refuseUsage(*error);
  return runCli(std::get<CliOptions>(parsed), systemFiles());
}

std::string firstLine(const std::string& text) {
  return text.substr(0, text.find('\n'));
}

}  // namespace

TEST(CliRunner, PrintsWhatTheCommandReports) {
  const CliResult result = run(smallContest(), {"Classes Report"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, "");
  EXPECT_NE(result.output.find("Gilts"), std::string::npos);
  EXPECT_EQ(run(smallContest(), {"32862", "--round=2"}).output.substr(0, 8), "Round 2 ");
  EXPECT_EQ(run(smallContest(), {"32796", "Classes Report"}).output,
            run(smallContest(), {"32796"}).output + result.output);
}

TEST(CliRunner, CustomReportDefaultsAsTheDialogDoes) {
  const std::string path = smallContest();
  const std::string swine = run(path, {"32800", "--category", "Swine"}).output;
  EXPECT_EQ(firstLine(swine), "High Individual Overall Swine");
  EXPECT_EQ(run(path, {"32800", "--classes", "3,2,3", "--title", "Swine"}).output, swine);
  EXPECT_EQ(
      run(path, {"32800", "--category", "Beef", "--classes", "2,3", "--title", "Swine"}).output,
      swine);
  EXPECT_EQ(run(path, {"32800"}).output, run(path, {"32800", "--classes", ""}).output);
  EXPECT_EQ(firstLine(run(path, {"32800", "--team", "--kind", "placings"}).output),
            "High Team Placings  (scoring the top 3 per team)");
}

TEST(CliRunner, SaysWhatIsMissing) {
  const std::string path = smallContest();
  struct Case {
    std::string contest;
    Words words;
    std::string reason;
  };
  for (const Case& c : {
           Case{"nowhere.scv",
                {"32796"},
                "cannot read 'nowhere.scv': it does not exist or cannot be opened"},
           Case{path, {"32843", "--class", "4"}, "there is no class 4; the contest has 3"},
           Case{path, {"32843", "--class", "1"}, "class 1 has no reasons"},
           Case{path, {"32862", "--round", "4"}, "there is no round 4; the contest has 3"},
           Case{path, {"32800", "--classes", "1,9"}, "there is no class 9; the contest has 3"},
           Case{path, {"32800", "--category", "Sheep"}, "the contest has no category 'Sheep'"},
       }) {
    const CliResult result = run(c.contest, c.words);
    EXPECT_EQ(result.status, 1) << c.reason;
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.error, "scorvane-report: " + c.reason + "\n");
  }
  const CliResult damaged = run(contestFile("not a contest\r\n"), {"32796"});
  EXPECT_EQ(damaged.status, 1);
  EXPECT_NE(damaged.error.find("it is not a contest file, or is damaged"), std::string::npos);
}

TEST(CliRunner, WrongUsageShowsTheUsage) {
  const CliResult result = run("a.scv", {});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(firstLine(result.error), "scorvane-report: no report is named");
  EXPECT_NE(result.error.find(usageText()), std::string::npos);
}

TEST(CliRunner, WritesEveryReportThatAsksNothing) {
  const std::string path = smallContest();
  const TemporaryFolder folder;
  ASSERT_EQ(run(path, {"--all", folder.path()}).status, 0);
  for (const Command& command : commandTable()) {
    if (command.report == nullptr || command.question != ReportQuestion::nothing) continue;
    const std::string text = contentOf(folder.file(std::string(command.caption) + ".txt"));
    EXPECT_NE(text.find("\r\n"), std::string::npos) << command.caption;
  }
  EXPECT_EQ(run(path, {"--all", folder.file("no such folder")}).status, 1);
}

TEST(CliRunner, ListsReportsByNumberAndCaption) {
  CliOptions options;
  options.action = CliOptions::Action::list;
  const std::string list = runCli(options, systemFiles()).output;
  EXPECT_NE(list.find("32796\tHigh Individual Overall\n"), std::string::npos);
  EXPECT_NE(list.find("32800\tCustom/Category Report\n"), std::string::npos);
  EXPECT_EQ(list.find("New Contest"), std::string::npos);
}
