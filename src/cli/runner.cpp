#include "cli/runner.h"

#include <algorithm>
#include <exception>
#include <tuple>
#include <utility>
#include <variant>

#include "cli/contest_input.h"
#include "cli/system.h"
#include "exchange/exports.h"
#include "results/awards_packet.h"
#include "results/high_reports.h"
#include "storage/safe_save.h"
#include "text/characters.h"

namespace scorvane {

namespace {

CliResult failed(const std::string& reason) {
  return {kFailed, "", remark(kReportProgram, reason)};
}

// Why the contest cannot follow the options: it lacks the class, round or category asked for.
std::optional<std::string> missingPart(const Contest& contest, const CliOptions& options) {
  const std::int32_t classes = contest.classes.count();
  const auto lacks = [&](const char* what, std::int32_t number) {
    return std::string("there is no ") + what + " " + std::to_string(number) +
           "; the contest has " + std::to_string(classes);
  };
  for (const std::int32_t number : options.classNumbers) {
    if (number > classes) return lacks("class", number);
  }
  const auto& [classIndex, round] = std::tie(options.request.classIndex, options.request.round);
  if (classIndex) {
    if (*classIndex >= classes) return lacks("class", *classIndex + 1);
    if (!contest.classes.hasReasons(*classIndex)) {
      return "class " + std::to_string(*classIndex + 1) + " has no reasons";
    }
    if (contest.reasonsOrder.empty()) return "the contest has no reasons order";
  }
  if (round && *round >= classes) return lacks("round", *round + 1);
  const auto& names = contest.categories;
  if (options.category && std::find(names.begin(), names.end(), *options.category) == names.end()) {
    return "the contest has no category '" + *options.category + "'";
  }
  return std::nullopt;
}

ClassSet classesOf(const Contest& contest, const std::string& category) {
  const auto& names = contest.categories;
  const auto index = std::find(names.begin(), names.end(), category) - names.begin();
  ClassSet classes;
  for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
    if (contest.classes.category(k) == index) classes.push_back(k);
  }
  return classes;
}

// Class indexes as the dialog's list has them: ascending, each once.
ClassSet classIndexes(std::vector<std::int32_t> numbers) {
  std::sort(numbers.begin(), numbers.end());
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  for (std::int32_t& number : numbers) --number;
  return numbers;
}

// The options' request with what the contest adds to it.
ReportRequest requestOf(const Contest& contest, const CliOptions& options) {
  ReportRequest request = options.request;
  // A category proposes title and classes, as in the dialog; what is named besides replaces them.
  if (options.category) request.classes = classesOf(contest, *options.category);
  if (!options.classNumbers.empty()) request.classes = classIndexes(options.classNumbers);
  request.title = options.title.value_or(options.category.value_or(""));
  request.numToReport = options.number.value_or(contest.settings.numToReport);
  if (!options.number && contest.settings.reportPercent) request.percent = true;
  return request;
}

CliResult printReports(const Contest& contest, const CliOptions& options, FileSystem& files) {
  if (const auto missing = missingPart(contest, options)) return failed(*missing);
  ReportRequest request = requestOf(contest, options);
  CliResult result;
  if (options.other) {
    auto opened = openContest(*options.other, files, kReportProgram, result.error);
    if (const auto* refusal = std::get_if<std::string>(&opened)) return failed(*refusal);
    request.other =
        std::make_shared<const Contest>(std::move(std::get<LoadedContest>(opened).contest));
    request.otherName = contestText(options.other->substr(options.other->find_last_of("/\\") + 1));
  }
  for (const Command* command : options.commands) {
    // Whatever a report needs has been looked for by now.
    std::string report = command->report()->build(contest, request).value();
    if (result.output.empty()) {
      result.output = std::move(report);
    } else {
      result.output += report;
    }
  }
  if (options.commands.size() != 1) return result;
  const auto warns = options.commands.front()->report()->warns;
  if (warns != nullptr && warns(result.output)) result.status = kThingsToLookAt;
  return result;
}

std::string fileNameOf(const Command& command) {
  std::string name(command.name());
  std::replace(name.begin(), name.end(), '/', '-');
  return name + ".txt";
}

// Writes what build() returns into a file. Returns why it is not there.
template <typename Build>
std::optional<std::string> writeReport(Build build, const std::string& path, FileSystem& files) {
  try {
    const std::string text = withWindowsLineEnds(build());
    if (saveSafely(files, path, text)) return std::nullopt;
    return "cannot write '" + contestText(path) + "'";
  } catch (const std::exception& error) {
    return "cannot make '" + contestText(path) + "': " + error.what();
  }
}

CliResult writeAllReports(const Contest& contest, const std::string& folder, FileSystem& files) {
  CliResult result;
  const auto note = [&result](const std::optional<std::string>& why) {
    if (!why) return;
    result.status = kFailed;
    result.error += remark(kReportProgram, *why);
  };
  // Should that fail, each report says so.
  static_cast<void>(files.makeFolders(folder));
  for (const Command& command : commandTable()) {
    const Report* report = command.report();
    if (report == nullptr || report->ask != nullptr) continue;
    // A report that asks nothing needs nothing.
    note(writeReport([&] { return report->build(contest, {}).value(); },
                     folder + "/" + fileNameOf(command), files));
  }
  const auto categories = categoryFiles(contest);
  if (!categories) note("no category reports are written: the contest has too many categories");
  for (const CategoryFile& file : categories.value_or(std::vector<CategoryFile>{})) {
    note(writeReport([&] { return customReport(contest, file.request); },
                     folder + "/" + file.name + ".txt", files));
  }
  return result;
}

// Writes the page and the spreadsheet, as far as they are wanted; one that fails keeps none from
// the other.
void writeExports(const Contest& contest, const CliOptions& options, FileSystem& files,
                  CliResult& result) {
  const auto write = [&](const std::string& path, const std::string& bytes) {
    if (exportFile(files, path, options.contest, bytes)) return;
    result.status = kFailed;
    result.error += remark(kReportProgram, "cannot write '" + contestText(path) + "'");
  };
  const auto& [page, spreadsheet] = std::tie(options.page, options.spreadsheet);
  if (!page.empty()) write(page, resultsPage(contest, options.pageContent));
  if (!spreadsheet.empty()) write(spreadsheet, spreadsheetBytes(contest, spreadsheet));
}

std::string reportList() {
  std::string list;
  for (const Command& command : commandTable()) {
    if (command.report() == nullptr) continue;
    list += std::to_string(command.id) + "\t" + std::string(command.name()) + "\n";
  }
  return list;
}

}  // namespace

CliResult runCli(const CliOptions& options, FileSystem& files) {
  switch (options.action) {
    case CliOptions::Action::help:
      return {0, usageText(), ""};
    case CliOptions::Action::version:
      return {0, "scorvane-report " SCORVANE_VERSION "\n", ""};
    case CliOptions::Action::list:
      return {0, reportList(), ""};
    case CliOptions::Action::printReports:
    case CliOptions::Action::allReports:
      break;
  }
  std::string remarks;
  const auto opened = openContest(options.contest, files, kReportProgram, remarks);
  if (const auto* refusal = std::get_if<std::string>(&opened)) return failed(*refusal);
  const Contest& contest = std::get<LoadedContest>(opened).contest;
  CliResult result = options.action == CliOptions::Action::allReports
                         ? writeAllReports(contest, options.folder, files)
                         : printReports(contest, options, files);
  writeExports(contest, options, files, result);
  result.error.insert(0, remarks);
  return result;
}

}  // namespace scorvane
