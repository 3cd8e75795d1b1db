#include "cli/options.h"

#include <gtest/gtest.h>

using Action = CliOptions::Action;
using Words = std::vector<std::string_view>;

namespace {

CliOptions accepted(const Words& words) {
  const auto parsed = parseOptions(words);
  if (const auto* error = std::get_if<UsageError>(&parsed)) {
    ADD_FAILURE() << error->reason;
    return {};
  }
  return std::get<CliOptions>(parsed);
}

}  // namespace

TEST(CliOptions, ReportsGoByNumberOrCaption) {
  for (const char* word : {"32796", "High Individual Overall", "high individual OVERALL"}) {
    const CliOptions options = accepted({"a.scv", word, "--round", "1", "32862"});
    EXPECT_EQ(options.action, Action::printReports);
    EXPECT_EQ(options.contest, "a.scv");
    EXPECT_EQ(options.commands, (std::vector{findCommand(32796), findCommand(32862)}));
  }
}

TEST(CliOptions, ValuesFollowOrStandBehindEquals) {
  const CliOptions options =
      accepted({"--title", "-x-", "a.scv", "--classes=3,1", "32800", "--kind", "Reasons",
                "--number=0", "--percent", "--team", "--category", "Swine"});
  EXPECT_EQ(options.title, "-x-");
  EXPECT_EQ(options.classNumbers, (std::vector<std::int32_t>{3, 1}));
  EXPECT_EQ(options.kind, ScoreKind::reasons);
  EXPECT_EQ(options.number, 0);
  EXPECT_TRUE(options.percent);
  EXPECT_TRUE(options.team);
  EXPECT_EQ(options.category, "Swine");
  EXPECT_EQ(accepted({"a.scv", "32800", "--classes", ""}).classNumbers,
            std::vector<std::int32_t>());
  EXPECT_EQ(accepted({"--", "--odd.scv", "32796"}).contest, "--odd.scv");
  EXPECT_EQ(accepted({"a.scv", "32843", "--class", "12"}).classNumber, 12);
  EXPECT_EQ(accepted({"a.scv", "--all", "out"}).folder, "out");
}

TEST(CliOptions, WrongUsageIsNamed) {
  struct Case {
    Words words;
    const char* reason;
  };
  for (const Case& c : {
           Case{{}, "no contest file is named"},
           Case{{"a.scv"}, "no report is named"},
           Case{{"a.scv", "99"}, "there is no report '99'; --list names all of them"},
           Case{{"a.scv", "32771"}, "there is no report '32771'; --list names all of them"},
           Case{{"a.scv", "32796", "x"}, "there is no report 'x'; --list names all of them"},
           Case{{"a.scv", "32796", "32801", "--round", "1"},
                "--round does not belong to these reports"},
           Case{{"a.scv", "32796", "--clas", "1"}, "there is no option '--clas'"},
           Case{{"a.scv", "32796", "--class", "1"},
                "--class does not belong to the report 'High Individual Overall'"},
           Case{{"a.scv", "32843"}, "'Reasons Score Sheets' needs --class"},
           Case{{"a.scv", "32862"}, "'Round Verification Report' needs --round"},
           Case{{"a.scv", "32862", "--round"}, "--round needs a value"},
           Case{{"a.scv", "32862", "--round", "0"}, "'0' is not a whole number from 1 on"},
           Case{{"a.scv", "32862", "--round", "2x"}, "'2x' is not a whole number from 1 on"},
           Case{{"a.scv", "32862", "--round", "2147483648"},
                "'2147483648' is not a whole number from 1 on"},
           Case{{"a.scv", "32800", "--classes", "1,,2"}, "'' is not a whole number from 1 on"},
           Case{{"a.scv", "32800", "--kind", "total"},
                "'total' is no kind of score: overall, placings, reasons or questions"},
           Case{{"a.scv", "32800", "--team=yes"}, "--team takes no value"},
           Case{{"a.scv", "32800", "--team", "--team"}, "--team is given twice"},
           Case{{"a.scv", "32796", "--all", "out"},
                "'32796' is too much: --all writes every report"},
           Case{{"a.scv", "--all", "out", "--team"}, "--team does not belong to --all"},
           Case{{"--list", "x"}, "there is no option '--list'"},
       }) {
    const auto parsed = parseOptions(c.words);
    ASSERT_TRUE(std::holds_alternative<UsageError>(parsed)) << c.reason;
    EXPECT_EQ(std::get<UsageError>(parsed).reason, c.reason);
  }
}
