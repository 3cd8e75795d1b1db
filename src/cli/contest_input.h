// Opening the contest files that a command line names.
#pragma once

#include <string>
#include <variant>

#include "storage/contest_reader.h"
#include "storage/file.h"

namespace scorvane {

/// The contest, or why there is none, as a sentence.
[[nodiscard]] std::variant<LoadedContest, std::string> openContest(const std::string& path,
                                                                   FileSystem& files);

}  // namespace scorvane
