// What scorvane-report is asked on its command line.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/command_table.h"

namespace scorvane {

struct CliOptions {
  enum class Action { help, version, list, printReports, allReports };
  Action action = Action::printReports;
  std::string contest;                   ///< path of the contest file
  std::string folder;                    ///< for allReports
  std::vector<const Command*> commands;  ///< for printReports: commands with a report, in order
  /// What the options say without the contest. The following wait for it.
  ReportRequest request;
  std::optional<std::string> title;
  std::optional<std::string> category;
  std::optional<std::string> other;        ///< path of the contest to compare with
  std::vector<std::int32_t> classNumbers;  ///< from 1; empty when not given
  std::optional<std::int32_t> number;      ///< rows, or per cent of them
};

/// Reads the arguments behind the program's name. Options that the report does not ask for, and a
/// report without what it must be told, are errors. Returns why a command line cannot be followed,
/// as one sentence.
[[nodiscard]] std::optional<std::string> readOptions(std::span<const std::string_view> arguments,
                                                     CliOptions& options);

/// What --help prints.
[[nodiscard]] std::string usageText();

}  // namespace scorvane
