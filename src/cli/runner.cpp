#include "cli/runner.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "storage/contest_reader.h"
#include "storage/safe_save.h"
#include "text/characters.h"

namespace scorvane {

namespace {

using Action = CliOptions::Action;

CliResult failed(const std::string& reason) {
  return {kFailed, "", "scorvane-report: " + reason + "\n", {}};
}

const char* reasonOf(ContestFault fault) {
  switch (fault) {
    case ContestFault::unreadable:
      return "it does not exist or cannot be opened";
    case ContestFault::scoreCountMismatch:
      return "the number of scores in the file is not correct";
    case ContestFault::notAContest:
      break;
  }
  return "it is not a contest file, or is damaged";
}

std::variant<Contest, std::string> openContest(const std::string& path, FileSystem& files) {
  auto loading = loadContestFile(files, path);
  if (auto* loaded = std::get_if<LoadedContest>(&loading)) return std::move(loaded->contest);
  return "cannot read '" + path + "': " + reasonOf(std::get<ContestFault>(loading));
}

std::string noSuchClass(std::int32_t number, const Contest& contest) {
  return "there is no class " + std::to_string(number) + "; the contest has " +
         std::to_string(contest.classes.count());
}

// "" when the contest has the class, the round and the category that are asked for.
std::string missingPart(const Contest& contest, const CliOptions& options) {
  std::vector<std::int32_t> numbers = options.classNumbers.value_or(std::vector<std::int32_t>());
  if (options.classNumber) numbers.push_back(*options.classNumber);
  for (const std::int32_t number : numbers) {
    if (number > contest.classes.count()) return noSuchClass(number, contest);
  }
  if (options.classNumber) {
    const std::string number = std::to_string(*options.classNumber);
    if (!contest.classes.hasReasons(*options.classNumber - 1)) {
      return "class " + number + " has no reasons";
    }
    if (contest.reasonsOrder.empty()) return "the contest has no reasons order";
  }
  if (options.round && *options.round > contest.classes.count()) {
    return "there is no round " + std::to_string(*options.round) + "; the contest has " +
           std::to_string(contest.classes.count());
  }
  const auto& names = contest.categories;
  if (options.category && std::find(names.begin(), names.end(), *options.category) == names.end()) {
    return "the contest has no category '" + *options.category + "'";
  }
  return {};
}

std::vector<std::int32_t> classesOf(const Contest& contest, const std::string& category) {
  const auto& names = contest.categories;
  const auto index = std::find(names.begin(), names.end(), category) - names.begin();
  std::vector<std::int32_t> classes;
  for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
    if (contest.classes.category(k) == index) classes.push_back(k);
  }
  return classes;
}

// Class indexes as the dialog's list gives them: ascending, each once.
std::vector<std::int32_t> classIndexes(std::vector<std::int32_t> numbers) {
  std::sort(numbers.begin(), numbers.end());
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  for (std::int32_t& number : numbers) --number;
  return numbers;
}

ReportRequest requestOf(const Contest& contest, const CliOptions& options) {
  ReportRequest request;
  if (options.classNumber) request.classIndex = *options.classNumber - 1;
  if (options.round) request.round = *options.round - 1;
  CustomReportRequest& custom = request.custom;
  // A category proposes title and classes, as in the dialog; what is named besides replaces them.
  if (options.category) custom.classes = classesOf(contest, *options.category);
  if (options.classNumbers) custom.classes = classIndexes(*options.classNumbers);
  custom.title = options.title.value_or(options.category.value_or(""));
  custom.kind = static_cast<int>(options.kind);
  custom.numToReport = options.number;
  if (options.percent) custom.percent = true;
  custom.team = options.team;
  return request;
}

CliResult printReports(const Contest& contest, const CliOptions& options) {
  const std::string missing = missingPart(contest, options);
  if (!missing.empty()) return failed(missing);
  const ReportRequest request = requestOf(contest, options);
  CliResult result;
  for (const Command* command : options.commands) {
    // Whatever a report needs has been looked for by now.
    result.output += command->report(contest, request).value();
  }
  return result;
}

std::string fileNameOf(const Command& command) {
  std::string name(command.caption);
  std::replace(name.begin(), name.end(), '/', '-');
  return name + ".txt";
}

CliResult writeAllReports(const Contest& contest, const std::string& folder, FileSystem& files) {
  CliResult result;
  for (const Command& command : commandTable()) {
    if (command.report == nullptr || command.question != ReportQuestion::nothing) continue;
    // A report that asks nothing needs nothing.
    const std::string report = command.report(contest, {}).value();
    const std::string path = folder + "/" + fileNameOf(command);
    if (!saveSafely(files, path, withWindowsLineEnds(report))) {
      return failed("cannot write '" + path + "'");
    }
  }
  return result;
}

std::string reportList() {
  std::string list;
  for (const Command& command : commandTable()) {
    if (command.report == nullptr) continue;
    list += std::to_string(command.id) + "\t" + std::string(command.caption) + "\n";
  }
  return list;
}

}  // namespace

CliResult runCli(const CliOptions& options, FileSystem& files) {
  switch (options.action) {
    case Action::help:
      return {0, std::string(usageText()), "", {}};
    case Action::version:
      return {0, "scorvane-report " SCORVANE_VERSION "\n", "", {}};
    case Action::list:
      return {0, reportList(), "", {}};
    case Action::printReports:
    case Action::allReports:
      break;
  }
  auto opened = openContest(options.contest, files);
  if (const auto* fault = std::get_if<std::string>(&opened)) return failed(*fault);
  auto& contest = std::get<Contest>(opened);
  CliResult result = options.action == Action::allReports
                         ? writeAllReports(contest, options.folder, files)
                         : printReports(contest, options);
  result.contest = std::move(contest);
  return result;
}

CliResult refuseUsage(const UsageError& error) {
  return {
      kWrongUsage, "", "scorvane-report: " + error.reason + "\n\n" + std::string(usageText()), {}};
}

}  // namespace scorvane
