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
  opened.copy_ = std::move(loaded.copy);
  if (opened.copy_.empty()) return opened;
  // What is to be replaced is what the file itself holds, as long as nobody else has finished it.
  auto unfinished = files.readWhole(path);
  const auto again = loadContestFile(files, path);
  const auto* stillUnfinished = std::get_if<LoadedContest>(&again);
  if (stillUnfinished != nullptr && stillUnfinished->copy == opened.copy_) {
    opened.bytes_ = std::move(unfinished);
  }
  return opened;
}

std::optional<std::string> ContestInFile::save(FileSystem& files,
                                               const std::optional<std::string>& into) const {
  const std::string& path = into ? *into : path_;
  const SaveLock lock(files, path);
  const bool isOwn = reachesSameFile(files, path, path_);
  if (isOwn && files.readWhole(path) != bytes_) {
    return "another program has changed '" + contestText(path) + "' meanwhile";
  }
  if (!saveSafely(files, path, writeContest(contest))) {
    return "cannot write '" + contestText(path) + "'";
  }
  if (isOwn && !copy_.empty()) files.remove(copy_);
  return std::nullopt;
}

}  // namespace scorvane
