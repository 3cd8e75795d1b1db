// Opening the contest files that a command line names.
#pragma once

#include <string>
#include <variant>

#include "storage/contest_loader.h"
#include "storage/file.h"

namespace scorvane {

/// The contest, or why there is none, as a sentence. What is to be said of its file is appended to
/// `remarks`, for standard error; `program` is who says it.
[[nodiscard]] std::variant<LoadedContest, std::string> openContest(const std::string& path,
                                                                   FileSystem& files,
                                                                   const char* program,
                                                                   std::string& remarks);

}  // namespace scorvane
