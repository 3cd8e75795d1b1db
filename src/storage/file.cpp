#include "storage/file.h"

#include <utility>

std::optional<FileView> FileSystem::view(const std::string& path) {
  std::optional<std::string> bytes = readWhole(path);
  if (!bytes) return std::nullopt;
  const auto owner = std::make_shared<const std::string>(std::move(*bytes));
  return FileView{*owner, owner};
}
