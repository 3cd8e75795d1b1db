// Saving so that the last good file is never at risk.
#pragma once

#include <string>
#include <string_view>

#include "storage/file.h"

namespace scorvane {

/// Makes `bytes` the content of a file. The new content is written beside the old one, flushed and
/// put in its place in one step, so at any moment the name stands for the whole old or the whole
/// new content. Where the folder allows no second file (the copy is then in the folder for
/// temporary files), or the file goes by other names too, it is written in place, with the room
/// made sure of first and the old content put back on failure. False when the content was not
/// saved; the old file is then whole. A read-only file is never written.
[[nodiscard]] bool saveSafely(FileSystem& files, const std::string& path, std::string_view bytes);

}  // namespace scorvane
