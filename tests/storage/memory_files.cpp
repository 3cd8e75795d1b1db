#include "tests/storage/memory_files.h"

#include <algorithm>

namespace {

class MemoryOutput : public OutputFile {
 public:
  MemoryOutput(MemoryFiles& disk, std::string path) : disk_(disk), path_(std::move(path)) {}

  bool write(std::string_view bytes) override {
    const bool broken = disk_.fails();
    // A write that fails has often written a part.
    if (broken) bytes = bytes.substr(0, bytes.size() / 2);
    std::string& content = file().content;
    const std::size_t end = position_ + bytes.size();
    const std::size_t growth = end > content.size() ? end - content.size() : 0;
    const std::size_t room = disk_.room - disk_.used();
    if (growth > room) bytes = bytes.substr(0, bytes.size() - (growth - room));
    content.replace(position_, bytes.size(), bytes);
    file().isFlushed = false;
    position_ += bytes.size();
    return !broken && growth <= room;
  }

  bool resize(std::uint64_t size) override {
    std::string& content = file().content;
    if (disk_.fails()) return false;
    if (size > content.size() && size - content.size() > disk_.room - disk_.used()) return false;
    content.resize(size);
    file().isFlushed = false;
    return true;
  }

  bool flush() override {
    if (disk_.fails()) return false;
    file().isFlushed = true;
    return true;
  }

  bool close() override { return !disk_.fails(); }

 private:
  MemoryFiles::File& file() { return disk_.files[path_]; }

  MemoryFiles& disk_;
  std::string path_;
  std::size_t position_ = 0;
};

}  // namespace

bool MemoryFiles::fails() {
  ++calls;
  return failingCall != 0 && (calls == failingCall || (stayBroken && calls > failingCall));
}

std::size_t MemoryFiles::used() const {
  std::size_t bytes = 0;
  for (const auto& [path, file] : files) bytes += file.content.size();
  return bytes;
}

std::optional<std::string> MemoryFiles::readWhole(const std::string& path) {
  if (fails() || !files.contains(path)) return std::nullopt;
  return files[path].content;
}

std::optional<std::string> MemoryFiles::resolve(const std::string& path) {
  return fails() ? std::nullopt : std::optional(path);
}

std::optional<FileFacts> MemoryFiles::facts(const std::string& path) {
  if (fails()) return std::nullopt;
  return files.contains(path) ? targetFacts : FileFacts{};
}

FileSystem::Opened MemoryFiles::create(const std::string& path) {
  if (fails()) return {failure, nullptr};
  if (folderIsProtected) return {FileOutcome::denied, nullptr};
  if (files.contains(path)) return {FileOutcome::exists, nullptr};
  files[path] = {"", false};
  return {FileOutcome::done, std::make_unique<MemoryOutput>(*this, path)};
}

FileSystem::Opened MemoryFiles::openExisting(const std::string& path) {
  if (fails()) return {failure, nullptr};
  if (!files.contains(path)) return {FileOutcome::failed, nullptr};
  return {FileOutcome::done, std::make_unique<MemoryOutput>(*this, path)};
}

FileOutcome MemoryFiles::replace(const std::string& from, const std::string& to) {
  if (fails()) return failure;
  if (replacingIsDenied || folderIsProtected) return FileOutcome::denied;
  replacedUnflushed = replacedUnflushed || !files[from].isFlushed;
  files[to] = files[from];
  files.erase(from);
  return FileOutcome::done;
}

void MemoryFiles::remove(const std::string& path) {
  if (!fails() && !folderIsProtected) files.erase(path);
}
