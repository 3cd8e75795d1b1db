// scorvane-contest merge: two files of one contest become one.
#pragma once

#include <optional>
#include <string>

#include "cli/program.h"
#include "storage/file.h"

namespace scorvane {

struct MergeOptions {
  std::string ours;
  std::string theirs;
  std::optional<std::string> base;
  std::string into;
};

/// Done, and the lists that were printed tell of something to look after.
inline constexpr int kDoneWithDifferences = 3;

[[nodiscard]] CliResult runMerge(const MergeOptions& options, FileSystem& files);

}  // namespace scorvane
