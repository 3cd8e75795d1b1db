// Saving so that the last good file is never at risk.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "storage/file.h"

namespace scorvane {

/// Makes `bytes` the content of a file. The new content is written to a temporary copy, flushed and
/// renamed over the old file in one step, so at any moment the name belongs to the whole old or the
/// whole new content. A file that has other names too, or whose folder takes no new file, is
/// overwritten in place instead: room is made first, the old content is put back on failure, and
/// a copy (beside it or in the folder for temporary files) is kept until all is well. Meanwhile the
/// file begins with kUnfinishedMark. False when the content was not saved; the old file is then
/// whole. A read-only file is never written. `mayReplace` is asked at the last moment before the
/// old content goes.
[[nodiscard]] bool saveSafely(
    FileSystem& files, const std::string& path, std::string_view bytes,
    const std::function<bool()>& mayReplace = [] { return true; });

/// The copy of a save in place that was never finished.
struct UnfinishedSave {
  std::string path;
  std::string bytes;
};

/// The copy that was to replace a file's content `found`; any whole copy of that file when that is
/// null, for a file which is itself not whole.
[[nodiscard]] std::optional<UnfinishedSave> unfinishedSave(FileSystem& files,
                                                           const std::string& path,
                                                           const std::string* found);

}  // namespace scorvane
