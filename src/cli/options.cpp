#include "cli/options.h"

#include <algorithm>
#include <array>
#include <limits>

#include "cli/arguments.h"
#include "cli/program.h"
#include "exchange/exports.h"
#include "text/number.h"

namespace scorvane {

namespace {

using Refusal = std::optional<std::string>;

// The options of each question, under a heading of their own in the help text.
struct QuestionGroup {
  std::optional<ReportRequest> (*ask)(MainWindow& window);
  const char* heading;
};
constexpr std::array kGroups = {
    QuestionGroup{askReasonsClass, "Reasons Score Sheets, Verify Reasons Scores"},
    QuestionGroup{askRound, "Round Verification Report"},
    QuestionGroup{askCustom, "Custom/Category Report"},
    QuestionGroup{askOtherContest, "Compare With Another File"},
};

constexpr const char* kExports = "Results for others";

constexpr const char* kPurpose =
    "Prints a report of a contest file, byte for byte as the program shows it; several are "
    "printed\n"
    "one after the other.";
constexpr const char* kExitStatus =
    "Exit status: 0 done; 1 the contest cannot be read, or lacks what the report needs, or the\n"
    "report cannot be written; 2 wrong usage; 4 Contest Check, asked for alone, found things to "
    "look\n"
    "at.";

bool sameWord(const std::string& a, std::string_view b) {
  return CLI::detail::to_lower(a) == CLI::detail::to_lower(std::string(b));
}

// As the library wants its checks: "" when all is well.
std::string readKind(const std::string& word, ScoreKind& kind) {
  for (const ScoreKind known : kScoreKinds) {
    if (!sameWord(word, scoreKindWord(known))) continue;
    kind = known;
    return "";
  }
  return inQuotes(word) + " is none of overall, placings, reasons and questions";
}

std::string readContent(const std::string& word, PageContent& content) {
  constexpr std::array kWords = {"awards", "teams", "cards"};
  for (std::size_t i = 0; i < kWords.size(); ++i) {
    if (!sameWord(word, kWords.at(i))) continue;
    content = static_cast<PageContent>(i);
    return "";
  }
  return inQuotes(word) + " is none of awards, teams and cards";
}

std::string readNumber(const std::string& text, CliOptions& options) {
  const bool percent = text.ends_with('%');
  options.number = exactNumber(std::string_view(text).substr(0, text.size() - (percent ? 1 : 0)));
  if (percent) options.request.percent = true;
  if (options.number && *options.number >= 0) return "";
  return inQuotes(text) + " is neither a number of rows, such as 10, nor a percentage, such as 25%";
}

// What the command line says, before it is held against the reports.
struct Words {
  bool list = false;
  std::vector<std::string> reports;
  std::optional<std::int32_t> classNumber;
  std::optional<std::int32_t> round;
  std::string content;
  std::string kind;
  std::string rows;
};

void declare(CLI::App& app, CliOptions& o, Words& words) {
  app.set_version_flag("--version", "scorvane-report " SCORVANE_VERSION, "prints the version");
  app.set_help_flag("-h,--help", "prints this text");
  app.add_flag("--list", words.list, "prints number and caption of every report, one a line");
  app.add_option("CONTEST.scv", o.contest, "the contest file")->type_name("");
  app.add_option("REPORT", words.reports, "number or caption of a report command")->type_name("");
  app.add_option(
         "--all", o.folder,
         "writes every report that asks nothing, and those of the categories, into DIR, with CR LF")
      ->type_name("DIR");

  app.add_option("--publish", o.page, "writes the results as a web page: FILE.html")
      ->type_name("FILE")
      ->group(kExports);
  app.add_option("--show", words.content,
                 "what the page tells: awards (by default), teams or cards")
      ->check([&o](const std::string& word) { return readContent(word, o.pageContent); })
      ->type_name("")
      ->group(kExports);
  app.add_option("--spreadsheet", o.spreadsheet,
                 "writes all scores as a workbook, FILE.xlsx, or text, FILE.csv")
      ->type_name("FILE")
      ->group(kExports);

  const CLI::Validator fromOne =
      CLI::Range(1, std::numeric_limits<std::int32_t>::max()).description("");
  const auto [sheets, round, custom, comparison] = kGroups;
  app.add_option("--class", words.classNumber, "class number, from 1")
      ->check(fromOne)
      ->group(sheets.heading);
  app.add_option("--round", words.round, "round, from 1")->check(fromOne)->group(round.heading);

  const auto add = [&app, group = custom.heading](const char* name, auto& value, const char* help) {
    return app.add_option(name, value, help)->group(group);
  };
  add("--title", o.title, "heading of the report");
  add("--classes", o.classNumbers, "class numbers to score, such as 1,3,4; none by default")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->check(fromOne);
  add("--category", o.category, "the classes of this category, and its name as the title");
  add("--kind", words.kind, "overall (by default), placings, reasons or questions")
      ->check([&o](const std::string& word) { return readKind(word, o.request.kind); });
  add("--number", words.rows, "rows to report, such as 10, or 25%; by default as the contest says")
      ->check([&o](const std::string& text) { return readNumber(text, o); });
  const auto addFlag = [&app, group = custom.heading](const char* name, bool& flag, const char* h) {
    app.add_flag(name, flag, h)->disable_flag_override()->group(group);
  };
  addFlag("--percent", o.request.percent, "the number is a percentage");
  addFlag("--team", o.request.team, "teams instead of individuals");
  app.add_option("--with", o.other, "the contest file to compare with")
      ->type_name("FILE")
      ->group(comparison.heading);
  app.footer(kExitStatus);
}

Refusal findReport(const std::string& word, CliOptions& options) {
  const std::optional<std::int32_t> id = exactNumber(word);
  std::vector<std::string> captions;
  for (const Command& command : commandTable()) {
    if (command.report() == nullptr) continue;
    captions.push_back(inQuotes(command.name()));
    if (id ? command.id != *id : !sameWord(word, command.name())) continue;
    options.commands.push_back(&command);
    return std::nullopt;
  }
  return "there is no report " + inQuotes(word) +
         suggested(inQuotes(word), captions, "; --list names all of them");
}

// Options and reports must go together.
Refusal checkUse(const CLI::App& app, const CliOptions& options) {
  for (const auto& [ask, heading] : kGroups) {
    const bool asked =
        std::any_of(options.commands.begin(), options.commands.end(),
                    [asks = ask](const Command* c) { return c->report()->ask == asks; });
    for (const CLI::Option* option : app.get_options()) {
      if (asked || option->count() == 0 || option->get_group() != heading) continue;
      return option->get_name() + " belongs to " + heading;
    }
  }
  for (const Command* command : options.commands) {
    const std::string needs = inQuotes(command->name()) + " needs ";
    if (command->report()->ask == askReasonsClass && !options.request.classIndex) {
      return needs + "--class";
    }
    if (command->report()->ask == askRound && !options.request.round) return needs + "--round";
    if (command->report()->ask == askOtherContest && !options.other) return needs + "--with";
  }
  return std::nullopt;
}

Refusal checkExports(const CLI::App& app, const CliOptions& options) {
  if (app.count("--publish") > 0 && !isPagePath(options.page)) {
    return "--publish needs the name of an .html file";
  }
  if (app.count("--show") > 0 && options.page.empty()) return "--show belongs to --publish";
  if (app.count("--spreadsheet") > 0 && !isSpreadsheetPath(options.spreadsheet)) {
    return "--spreadsheet needs the name of an .xlsx or a .csv file";
  }
  return std::nullopt;
}

Refusal checkWords(const CLI::App& app, const Words& words, CliOptions& options) {
  if (words.list) {
    options.action = CliOptions::Action::list;
    return std::nullopt;
  }
  if (options.contest.empty()) return "no contest file is named";
  if (auto refusal = checkExports(app, options)) return refusal;
  if (app.count("--all") > 0) {
    options.action = CliOptions::Action::allReports;
    if (options.folder.empty()) return "--all needs the name of a folder";
    if (!words.reports.empty()) {
      return inQuotes(words.reports[0]) + " is too much: --all writes every report";
    }
  } else if (words.reports.empty() && options.page.empty() && options.spreadsheet.empty()) {
    return "no report is named";
  }
  for (const std::string& word : words.reports) {
    if (auto refusal = findReport(word, options)) return refusal;
  }
  if (words.classNumber) options.request.classIndex = *words.classNumber - 1;
  if (words.round) options.request.round = *words.round - 1;
  return checkUse(app, options);
}

}  // namespace

Refusal readOptions(std::span<const std::string_view> arguments, CliOptions& options) {
  CLI::App app(kPurpose, kReportProgram);
  Words words;
  declare(app, options, words);
  try {
    app.parse(libraryArguments(arguments));
  } catch (const CLI::CallForHelp&) {
    options.action = CliOptions::Action::help;
    return std::nullopt;
  } catch (const CLI::CallForVersion&) {
    options.action = CliOptions::Action::version;
    return std::nullopt;
  } catch (const CLI::ExtrasError&) {
    return refuseUnknown(app, app.remaining().at(0));
  } catch (const CLI::ParseError& error) {
    return error.what();
  }
  return checkWords(app, words, options);
}

std::string usageText() {
  CLI::App app(kPurpose, kReportProgram);
  CliOptions options;
  Words words;
  declare(app, options, words);
  return app.help();
}

}  // namespace scorvane
