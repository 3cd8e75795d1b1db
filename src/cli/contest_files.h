// The contest files that scorvane-contest changes.
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "cli/program.h"
#include "model/contest.h"
#include "storage/file.h"

namespace scorvane {

/// What a command that did nothing leaves behind.
[[nodiscard]] CliResult nothingDone(const std::string& reason);

/// A contest to be changed, and where it goes.
class ContestInFile {
 public:
  /// Opens the contest of `path`; a new one when there is no such file. Returns why there is none,
  /// as a sentence.
  static std::variant<ContestInFile, std::string> open(FileSystem& files, const std::string& path);

  /// Whether there was a file, or the contest is new.
  [[nodiscard]] bool isThere() const { return bytes_.has_value(); }

  Contest contest;
  std::string remarks;  ///< what is to be said of its file, for standard error

  /// Writes the contest into `into`, or else back into its own file, safely; returns why that was
  /// not done. What somebody else has put into the file since it was read is never written over.
  [[nodiscard]] std::optional<std::string> save(FileSystem& files,
                                                const std::optional<std::string>& into) const;

 private:
  std::string path_;
  std::optional<std::string> bytes_;  ///< of the file as it was read; nothing without a file
};

}  // namespace scorvane
