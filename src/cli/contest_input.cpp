#include "cli/contest_input.h"

#include <utility>

#include "cli/system.h"

namespace scorvane {

namespace {

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

}  // namespace

std::variant<LoadedContest, std::string> openContest(const std::string& path, FileSystem& files) {
  if (const auto file = files.openToRead(path)) {
    expectMemory(3 * static_cast<std::size_t>(file->size()));  // the bytes, and the contest of them
  }
  auto loading = loadContestFile(files, path);
  if (auto* loaded = std::get_if<LoadedContest>(&loading)) return std::move(*loaded);
  return "cannot read '" + contestText(path) + "': " + reasonOf(std::get<ContestFault>(loading));
}

}  // namespace scorvane
