// What scorvane-report is asked on its command line.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "app/command_table.h"
#include "results/score_kind.h"

namespace scorvane {

struct CliOptions {
  enum class Action { help, version, list, printReports, allReports };
  Action action = Action::help;
  std::string contest;                      ///< path of the contest file
  std::string folder;                       ///< for allReports
  std::vector<const Command*> commands;     ///< for printReports: commands with a report, in order
  std::optional<std::int32_t> classNumber;  ///< from 1
  std::optional<std::int32_t> round;        ///< from 1
  std::optional<std::string> title;
  std::optional<std::string> category;
  std::optional<std::vector<std::int32_t>> classNumbers;  ///< from 1
  ScoreKind kind = ScoreKind::overall;
  std::optional<std::int32_t> number;
  bool percent = false;
  bool team = false;
};

/// Why a command line cannot be followed, as one sentence.
struct UsageError {
  std::string reason;
};

/// Reads the arguments behind the program's name. An option's value stands behind it or behind
/// "=" in the same argument; "--" ends the options. Options that the report does not ask for, and
/// a report without what it must be told, are errors.
[[nodiscard]] std::variant<CliOptions, UsageError> parseOptions(
    std::span<const std::string_view> arguments);

/// What --help prints.
[[nodiscard]] std::string_view usageText();

}  // namespace scorvane
