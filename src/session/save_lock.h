// Two programs must not save into each other's save.
#pragma once

#include <memory>
#include <string>

#include "storage/file.h"

namespace scorvane {

/// Held while a contest is saved. Other copies of the program on this machine are kept away, and by
/// a file beside the contest those on other machines.
class SaveLock {
 public:
  /// Waits for about five seconds at most.
  SaveLock(FileSystem& files, const std::string& path);
  SaveLock(const SaveLock&) = delete;
  SaveLock& operator=(const SaveLock&) = delete;
  ~SaveLock() = default;

  /// Whether certainly nobody else saves. A folder that takes no second file has to do without.
  [[nodiscard]] bool isHeld() const { return isHeld_; }

 private:
  std::shared_ptr<void> machine_;
  std::shared_ptr<void> beside_;
  bool isHeld_ = false;
};

}  // namespace scorvane
