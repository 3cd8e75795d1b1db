#include "cli/contest_input.h"

#include <utility>

#include "cli/program.h"
#include "cli/system.h"
#include "text/format.h"

namespace scorvane {

namespace {

std::string reasonOf(const ContestFault& fault) {
  const std::string line = " (line " + std::to_string(fault.line) + ")";
  switch (fault.kind) {
    case ContestFault::unreadable:
      return "it does not exist or cannot be opened";
    case ContestFault::scoreCountMismatch:
      return "the number of scores in the file is not correct" + line;
    case ContestFault::notAContest:
      break;
  }
  return "it is not a contest file, or is damaged" + line;
}

}  // namespace

std::variant<LoadedContest, std::string> openContest(const std::string& path, FileSystem& files,
                                                     const char* program, std::string& remarks) {
  if (const auto file = files.openToRead(path)) {
    expectMemory(3 * static_cast<std::size_t>(file->size()));  // the bytes, and the contest of them
  }
  const std::string shown = formatText("'%s'", contestText(path).c_str());
  auto loading = loadContestFile(files, path);
  auto* loaded = std::get_if<LoadedContest>(&loading);
  if (loaded == nullptr) {
    return "cannot read " + shown + ": " + reasonOf(std::get<ContestFault>(loading));
  }
  if (!loaded->copy.empty()) {
    remarks += remark(program, shown + " was never saved to its end; this is its copy '" +
                                   contestText(loaded->copy) + "'");
  }
  if (!loaded->oddities.empty()) {
    remarks += remark(program, shown + " may be damaged:") + loaded->oddities;
  }
  return std::move(*loaded);
}

}  // namespace scorvane
