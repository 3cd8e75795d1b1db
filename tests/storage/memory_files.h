// Files in memory whose Nth operation fails, so that every step of a save is made to fail in turn.
#pragma once

#include <algorithm>
#include <map>
#include <string>

#include "storage/file.h"

class MemoryFiles : public FileSystem {
 public:
  struct File {
    std::string content;
    bool isFlushed = true;
  };
  std::map<std::string, File> files;

  // The disk and its moods.
  int failingCall = 0;      ///< the operation, counted from 1, that fails; 0 for none
  bool stayBroken = false;  ///< all operations after it fail too, except that files still vanish
  FileOutcome failure = FileOutcome::failed;
  bool folderIsProtected = false;  ///< no file can be made, removed or renamed
  bool replacingIsDenied = false;
  std::size_t room = 1U << 20;  ///< bytes on the disk
  FileFacts targetFacts = {true, true, false, false};

  int calls = 0;
  bool replacedUnflushed = false;  ///< a file was put in place before the medium held it

  std::optional<std::string> readWhole(const std::string& path) override {
    return fails() || !files.contains(path) ? std::nullopt : std::optional(files[path].content);
  }
  std::optional<std::string> resolve(const std::string& path) override {
    return fails() ? std::nullopt : std::optional(path);
  }
  std::optional<FileFacts> facts(const std::string& path) override {
    if (fails()) return std::nullopt;
    return files.contains(path) ? targetFacts : FileFacts{};
  }
  Opened create(const std::string& path) override {
    if (fails()) return {failure, nullptr};
    if (folderIsProtected) return {FileOutcome::denied, nullptr};
    if (files.contains(path)) return {FileOutcome::exists, nullptr};
    files[path] = {"", false};
    return {FileOutcome::done, std::make_unique<Output>(*this, files[path])};
  }
  Opened openExisting(const std::string& path) override {
    if (fails()) return {failure, nullptr};
    if (!files.contains(path)) return {FileOutcome::failed, nullptr};
    return {FileOutcome::done, std::make_unique<Output>(*this, files[path])};
  }
  FileOutcome replace(const std::string& from, const std::string& to) override {
    if (fails()) return failure;
    if (replacingIsDenied || folderIsProtected) return FileOutcome::denied;
    replacedUnflushed = replacedUnflushed || !files[from].isFlushed;
    files[to] = files[from];
    files.erase(from);
    return FileOutcome::done;
  }
  void remove(const std::string& path) override {
    const bool broken = fails() && !stayBroken;
    if (!broken && !folderIsProtected) files.erase(path);
  }
  std::string temporaryName(const std::string& path, int attempt) override {
    return path + "." + std::to_string(attempt);
  }
  void pause(int /*milliseconds*/) override {}

 private:
  class Output : public OutputFile {
   public:
    Output(MemoryFiles& disk, File& file) : disk_(disk), file_(file) {}

    bool write(std::string_view bytes) override {
      // A write that fails has often written a part.
      const std::size_t wanted = disk_.fails() ? bytes.size() / 2 : bytes.size();
      const std::size_t taken =
          std::min(wanted, file_.content.size() + disk_.freeRoom() - position_);
      file_.content.replace(position_, taken, bytes.substr(0, taken));
      file_.isFlushed = false;
      position_ += taken;
      return taken == bytes.size();
    }
    bool resize(std::uint64_t size) override {
      if (disk_.fails() || size > file_.content.size() + disk_.freeRoom()) return false;
      file_.content.resize(size);
      file_.isFlushed = false;
      return true;
    }
    bool flush() override { return file_.isFlushed = !disk_.fails(); }
    bool close() override { return !disk_.fails(); }

   private:
    MemoryFiles& disk_;
    File& file_;
    std::size_t position_ = 0;
  };

  /// Counts one more operation; whether it is to fail.
  bool fails() {
    ++calls;
    return failingCall != 0 && (calls == failingCall || (stayBroken && calls > failingCall));
  }
  [[nodiscard]] std::size_t freeRoom() const {
    std::size_t used = 0;
    for (const auto& [path, file] : files) used += file.content.size();
    return room - used;
  }
};
