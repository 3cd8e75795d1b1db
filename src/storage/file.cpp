#include "storage/file.h"

#include <algorithm>

namespace scorvane {

std::optional<std::string> FileSystem::readWhole(const std::string& path, std::uint64_t most) {
  const std::unique_ptr<InputFile> file = openToRead(path);
  if (file == nullptr || file->size() > most) return std::nullopt;
  // One byte more than the length, so that reading the end needs no larger buffer.
  constexpr std::size_t kSmallestBuffer = 4096;
  std::string bytes(std::max(static_cast<std::size_t>(file->size()) + 1, kSmallestBuffer), '\0');
  std::size_t length = 0;
  for (;;) {
    const auto count = file->read(bytes.data() + length, bytes.size() - length);
    if (!count) return std::nullopt;
    if (*count == 0) break;
    length += *count;
    if (length > most) return std::nullopt;
    if (length == bytes.size()) bytes.resize(length * 2);
  }
  bytes.resize(length);
  return bytes;
}

std::optional<std::int64_t> FileSystem::lastChange(const std::string& path) {
  const auto found = stamp(path);
  return found ? std::optional(found->changed) : std::nullopt;
}

}  // namespace scorvane
