#include "cli/runner.h"

#include <algorithm>
#include <tuple>
#include <utility>
#include <variant>

#include "cli/system.h"
#include "results/awards_packet.h"
#include "storage/contest_reader.h"
#include "storage/safe_save.h"
#include "text/characters.h"

namespace scorvane {

namespace {

using Action = CliOptions::Action;

CliResult failed(const std::string& reason) {
  return {kFailed, "", "scorvane-report: " + reason + "\n"};
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

// The contest, or why there is none.
std::variant<Contest, std::string> openContest(const std::string& path, FileSystem& files) {
  if (const auto file = files.openToRead(path)) {
    expectMemory(3 * static_cast<std::size_t>(file->size()));  // the bytes, and the contest of them
  }
  auto loading = loadContestFile(files, path);
  if (auto* loaded = std::get_if<LoadedContest>(&loading)) return std::move(loaded->contest);
  return "cannot read '" + path + "': " + reasonOf(std::get<ContestFault>(loading));
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

CliResult printReports(const Contest& contest, const CliOptions& options) {
  if (const auto missing = missingPart(contest, options)) return failed(*missing);
  const ReportRequest request = requestOf(contest, options);
  CliResult result;
  for (const Command* command : options.commands) {
    // Whatever a report needs has been looked for by now.
    result.output += command->report()->build(contest, request).value();
  }
  const auto warns = options.commands.front()->report()->warns;
  const bool isAlone = options.commands.size() == 1;
  if (isAlone && warns != nullptr && warns(result.output)) result.status = kThingsToLookAt;
  return result;
}

std::string fileNameOf(const Command& command) {
  std::string name(command.caption);
  std::replace(name.begin(), name.end(), '/', '-');
  return name + ".txt";
}

bool writeReport(const std::string& path, const std::string& text, FileSystem& files) {
  return saveSafely(files, path, withWindowsLineEnds(text));
}

CliResult writeAllReports(const Contest& contest, const std::string& folder, FileSystem& files) {
  CliResult result;
  for (const Command& command : commandTable()) {
    const Report* report = command.report();
    if (report == nullptr || report->ask != nullptr) continue;
    // A report that asks nothing needs nothing.
    const std::string text = report->build(contest, {}).value();
    const std::string path = folder + "/" + fileNameOf(command);
    if (!writeReport(path, text, files)) return failed("cannot write '" + path + "'");
  }
  for (const auto& [name, text] : categoryReports(contest)) {
    const std::string path = folder + "/" + name + ".txt";
    if (!writeReport(path, text, files)) return failed("cannot write '" + path + "'");
  }
  return result;
}

std::string reportList() {
  std::string list;
  for (const Command& command : commandTable()) {
    if (command.report() == nullptr) continue;
    list += std::to_string(command.id) + "\t" + std::string(command.caption) + "\n";
  }
  return list;
}

}  // namespace

CliResult runCli(const CliOptions& options, FileSystem& files) {
  switch (options.action) {
    case Action::help:
      return {0, usageText(), ""};
    case Action::version:
      return {0, "scorvane-report " SCORVANE_VERSION "\n", ""};
    case Action::list:
      return {0, reportList(), ""};
    case Action::printReports:
    case Action::allReports:
      break;
  }
  const auto opened = openContest(options.contest, files);
  if (const auto* refusal = std::get_if<std::string>(&opened)) return failed(*refusal);
  const auto& contest = std::get<Contest>(opened);
  return options.action == Action::allReports ? writeAllReports(contest, options.folder, files)
                                              : printReports(contest, options);
}

CliResult refuseUsage(const std::string& reason) {
  return {kWrongUsage, "",
          "scorvane-report: " + reason + "\nscorvane-report --help explains everything.\n"};
}

}  // namespace scorvane
