// Saving so that the last good file is never at risk.
#pragma once

#include <string>
#include <string_view>

#include "storage/file.h"

namespace scorvane {

/// Makes `bytes` the content of a file. The new content is written to a temporary copy, flushed and
/// renamed over the old file in one step, so at any moment the name belongs to the whole old or the
/// whole new content. A file that has other names too, or whose folder takes no new file, is
/// overwritten in place instead: room is made first, the old content is put back on failure, and
/// the copy (then in the folder for temporary files) is kept until all is well. False when the
/// content was not saved; the old file is then whole. A read-only file is never written.
[[nodiscard]] bool saveSafely(FileSystem& files, const std::string& path, std::string_view bytes);

}  // namespace scorvane
