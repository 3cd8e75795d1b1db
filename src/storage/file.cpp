#include "storage/file.h"

#include <algorithm>

namespace scorvane {

std::optional<std::string> FileSystem::readWhole(const std::string& path) {
  const std::unique_ptr<InputFile> file = openToRead(path);
  if (file == nullptr) return std::nullopt;
  // One byte more than expected, so that the end of the file shows without making more room.
  constexpr std::size_t kLeastRoom = 4096;
  std::string bytes(std::max(static_cast<std::size_t>(file->size()) + 1, kLeastRoom), '\0');
  std::size_t length = 0;
  for (;;) {
    const auto count = file->read(bytes.data() + length, bytes.size() - length);
    if (!count || length > kMaxFileSize) return std::nullopt;
    if (*count == 0) break;
    length += *count;
    if (length == bytes.size()) bytes.resize(length * 2);
  }
  bytes.resize(length);
  return bytes;
}

}  // namespace scorvane
