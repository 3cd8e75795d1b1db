#include "cli/contest_files.h"

#include <utility>

#include "cli/contest_input.h"
#include "cli/system.h"
#include "model/new_contest.h"
#include "session/data_folder.h"
#include "session/save_lock.h"
#include "storage/contest_writer.h"
#include "storage/safe_save.h"

namespace scorvane {

CliResult nothingDone(const std::string& reason) {
  return {kFailed, "", remark(kContestProgram, reason)};
}

std::variant<ContestInFile, std::string> ContestInFile::open(FileSystem& files,
                                                             const std::string& path) {
  ContestInFile opened;
  opened.path_ = path;
  const auto status = files.status(path);
  if (status && !status->exists) {
    opened.contest = newContest();
    return opened;
  }
  auto loading = openContest(path, files, kContestProgram, opened.remarks);
  if (auto* refusal = std::get_if<std::string>(&loading)) return std::move(*refusal);
  auto& loaded = std::get<LoadedContest>(loading);
  opened.contest = std::move(loaded.contest);
  opened.bytes_ = std::move(loaded.bytes);
  return opened;
}

std::optional<std::string> ContestInFile::save(FileSystem& files,
                                               const std::optional<std::string>& into) const {
  const std::string& path = into ? *into : path_;
  const SaveLock lock(files, path);
  if (reachesSameFile(files, path, path_) && files.readWhole(path) != bytes_) {
    return "another program has changed '" + contestText(path) + "' meanwhile";
  }
  if (saveSafely(files, path, writeContest(contest))) return std::nullopt;
  return "cannot write '" + contestText(path) + "'";
}

}  // namespace scorvane
