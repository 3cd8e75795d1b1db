// Files in memory whose Nth operation fails, so that every step of a save is made to fail in turn.
#pragma once

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
  bool stayBroken = false;  ///< all operations after it fail too
  FileOutcome failure = FileOutcome::failed;
  bool folderIsProtected = false;  ///< no file can be made, removed or renamed
  bool replacingIsDenied = false;
  std::size_t room = 1U << 20;  ///< bytes on the disk
  FileFacts targetFacts = {true, true, false, false};

  int calls = 0;
  bool replacedUnflushed = false;  ///< a file was put in place before the medium held it

  std::optional<std::string> readWhole(const std::string& path) override;
  std::optional<std::string> resolve(const std::string& path) override;
  std::optional<FileFacts> facts(const std::string& path) override;
  Opened create(const std::string& path) override;
  Opened openExisting(const std::string& path) override;
  FileOutcome replace(const std::string& from, const std::string& to) override;
  void remove(const std::string& path) override;
  std::string temporaryName(const std::string& path, int attempt) override {
    return path + "." + std::to_string(attempt);
  }
  void pause(int /*milliseconds*/) override {}

  /// Counts one more operation; whether it is to fail.
  bool fails();
  [[nodiscard]] std::size_t used() const;
};
