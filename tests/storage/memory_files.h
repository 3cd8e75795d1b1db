// Files in memory whose Nth operation fails, so that every step of a save is made to fail in turn.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <string>

#include "storage/file.h"

namespace scorvane {

class MemoryFiles : public FileSystem {
 public:
  struct File {
    std::string content;
    bool isFlushed = true;
    std::string onMedium{};  ///< what a power cut leaves for sure
    std::int64_t changed = 0;

    bool operator==(const File&) const = default;
  };
  std::map<std::string, File> files;

  // The disk and its moods.
  int failingCall = 0;      ///< the operation, counted from 1, that fails; 0 for none
  bool stayBroken = false;  ///< all operations after it fail too, except that files still vanish
  FileOutcome failure = FileOutcome::failed;
  bool folderIsProtected = false;  ///< no file of the folder can be made, removed or renamed
  int deniedReplacings = 0;        ///< how often another program is in the way
  bool hasOtherNames = false;
  std::size_t room = 1U << 20;  ///< bytes on the disk
  bool tellsSizes = true;
  bool listsLate = false;  ///< lists tell of files as they were when they were made

  int calls = 0;
  bool replacedUnflushed = false;  ///< a file was put in place before the medium held it
  bool writtenOver = false;        ///< bytes of a file that was there before were written over
  int pausedFor = 0;               ///< milliseconds

  std::string readOnlyPath;  ///< what begins so can only be read
  std::int64_t clock = 1'000'000 * kTicksPerSecond;
  std::string localData = "local";

  /// A file that is safe on the disk.
  void put(const std::string& path, const std::string& bytes, std::int64_t when) {
    files[path] = {bytes, true, bytes, when};
  }
  void put(const std::string& path, const std::string& bytes) { put(path, bytes, clock); }
  /// Leaves room for so many more bytes.
  void fill(std::size_t left = 0) {
    room = left;
    for (const auto& [path, file] : files) room += file.content.size();
  }
  /// Whether the power fails amid some work: at the operation of this number, which is half done.
  template <typename Work>
  bool isCutAt(int call, const Work& work) {
    cutAtCall_ = calls + call;
    bool isCut = false;
    try {
      work();
    } catch (const PowerCut&) {
      isCut = true;
    }
    cutAtCall_ = 0;
    return isCut;
  }
  /// What the disk holds after a power cut: of what was not flushed the first `torn` bytes. False
  /// when no file has that many: all cases were seen.
  bool losePower(std::size_t torn) {
    bool isTorn = torn == 0;
    claims_.clear();
    for (auto& [path, file] : files) {
      const std::size_t safe = std::min(file.onMedium.size(), file.content.size());
      isTorn = isTorn || file.content.size() - safe >= torn;
      if (file.content.size() > safe)
        file.content.resize(std::min(file.content.size(), safe + torn));
      file = {file.content, true, file.content, file.changed};
    }
    return isTorn;
  }

  /// The same where files may have been written over: of what was not flushed the disk holds what
  /// comes before a byte. False when no file has that byte.
  bool tearAt(std::size_t byte) {
    bool isTorn = byte == 0;
    for (auto& [path, file] : files) {
      if (file.content == file.onMedium) continue;
      isTorn = isTorn || byte <= std::max(file.content.size(), file.onMedium.size());
      file.content.resize(std::min(file.content.size(), byte));
      if (byte < file.onMedium.size()) file.content += file.onMedium.substr(byte);
    }
    return isTorn;
  }

  std::unique_ptr<InputFile> openToRead(const std::string& path) override {
    if (fails() || !files.contains(path)) return nullptr;
    return std::make_unique<Input>(*this, files[path].content);
  }
  std::optional<std::string> resolve(const std::string& path) override {
    return fails() ? std::nullopt : std::optional(path);
  }
  std::optional<FileStatus> status(const std::string& path) override {
    if (fails()) return std::nullopt;
    return files.contains(path) ? FileStatus{true, true, false, hasOtherNames} : FileStatus{};
  }
  Opened create(const std::string& path) override {
    if (fails()) return {failure, nullptr};
    if (isProtected(path)) return {FileOutcome::denied, nullptr};
    if (files.contains(path)) return {FileOutcome::exists, nullptr};
    files[path] = {"", false};
    return {FileOutcome::done, std::make_unique<Output>(*this, files[path], true)};
  }
  Opened openExisting(const std::string& path) override {
    if (fails() || !files.contains(path) || isReadOnly(path)) return {failure, nullptr};
    return {FileOutcome::done, std::make_unique<Output>(*this, files[path], false)};
  }
  FileOutcome replace(const std::string& from, const std::string& to) override {
    if (fails()) return failure;
    if (isProtected(to) || deniedReplacings-- > 0) return FileOutcome::denied;
    replacedUnflushed = replacedUnflushed || !files[from].isFlushed;
    files[to] = files[from];
    files.erase(from);
    return FileOutcome::done;
  }
  void remove(const std::string& path) override {
    if ((!fails() || stayBroken) && !isProtected(path)) files.erase(path);
  }
  std::string temporaryName(const std::string& path, Place place, int attempt) override {
    return (place == Place::beside ? path : "temporary/" + path) + "." + std::to_string(attempt);
  }
  void pause(int milliseconds) override { pausedFor += milliseconds; }
  Claim lockForSaving(const std::string& /*path*/, int /*patience*/) override {
    return {FileOutcome::done, nullptr};
  }
  Opened openToAppend(const std::string& path) override {
    if (fails() || isProtected(path)) return {failure, nullptr};
    File& file = files[path];
    return {FileOutcome::done, std::make_unique<Output>(*this, file, true, file.content.size())};
  }
  std::vector<ListedFile> list(const std::string& folder) override {
    std::vector<ListedFile> found;
    if (fails()) return found;
    for (const auto& [path, file] : files) {
      if (!path.starts_with(folder + "/")) continue;
      const std::string name =
          path.substr(folder.size() + 1, path.find('/', folder.size() + 1) - folder.size() - 1);
      const bool isFolder = folder.size() + 1 + name.size() < path.size();
      if (!found.empty() && found.back().name == name) continue;
      found.push_back({name, isFolder, file.content.size(), file.changed});
      if (listsLate) found.back().size = found.back().changed = 0;
    }
    return found;
  }
  bool makeFolders(const std::string& folder) override { return !fails() && !isProtected(folder); }
  std::string localDataFolder() override { return localData; }
  std::optional<FileStamp> stamp(const std::string& path) override {
    if (fails() || !files.contains(path)) return std::nullopt;
    return FileStamp{files[path].content.size(), files[path].changed};
  }
  std::int64_t now() override { return clock; }
  Claim claim(const std::string& path) override {
    if (fails() || isProtected(path)) return {failure, nullptr};
    if (!claims_[path].expired()) return {FileOutcome::denied, nullptr};
    auto hold = std::make_shared<int>();
    claims_[path] = hold;
    return {FileOutcome::done, hold};
  }

 private:
  struct PowerCut {};

  // Returns fewer bytes than there is room for.
  class Input final : public InputFile {
   public:
    Input(MemoryFiles& disk, std::string content) : disk_(disk), content_(std::move(content)) {}

    [[nodiscard]] std::uint64_t size() const override {
      return disk_.tellsSizes ? content_.size() : 0;
    }
    std::optional<std::size_t> read(char* to, std::size_t most) override {
      if (disk_.fails()) return std::nullopt;
      const std::size_t count = content_.copy(to, std::min<std::size_t>(most, 1000), position_);
      position_ += count;
      return count;
    }

   private:
    MemoryFiles& disk_;
    std::string content_;
    std::size_t position_ = 0;
  };

  class Output final : public OutputFile {
   public:
    Output(MemoryFiles& disk, File& file, bool isNew, std::size_t position = 0)
        : disk_(disk), file_(file), isNew_(isNew), position_(position) {}
    ~Output() override {
      if (!isOpen_) return;
      // Nothing is thrown from here; a cut is the same before the next operation.
      if (disk_.cutAtCall_ == disk_.calls + 1) ++disk_.cutAtCall_;
      static_cast<void>(close());
    }

    bool write(std::string_view bytes) override {
      // A write that fails has often written a part.
      const std::size_t wanted = disk_.fails() ? bytes.size() / 2 : bytes.size();
      const std::size_t taken =
          std::min(wanted, file_.content.size() + disk_.freeRoom() - position_);
      file_.content.replace(position_, taken, bytes.substr(0, taken));
      file_.isFlushed = false;
      file_.changed = disk_.clock;
      position_ += taken;
      disk_.writtenOver = disk_.writtenOver || !isNew_;
      return taken == bytes.size();
    }
    // One that fails to make the file longer has made it a little longer.
    bool resize(std::uint64_t size) override {
      const bool done = !disk_.fails() && size <= file_.content.size() + disk_.freeRoom();
      const std::size_t longer = file_.content.size() + std::min<std::size_t>(disk_.freeRoom(), 1);
      if (done || size > longer) file_.content.resize(done ? size : longer);
      file_.isFlushed = false;
      return done;
    }
    bool flush() override {
      if (disk_.fails()) return file_.isFlushed = false;
      file_.onMedium = file_.content;
      return file_.isFlushed = true;
    }
    // One that fails loses what was written last.
    bool close() override {
      isOpen_ = false;
      if (!disk_.fails()) return true;
      if (position_ > 0) file_.content.pop_back();
      return false;
    }

   private:
    MemoryFiles& disk_;
    File& file_;
    bool isNew_;
    std::size_t position_;
    bool isOpen_ = true;
  };

  [[nodiscard]] bool isReadOnly(const std::string& path) const {
    return !readOnlyPath.empty() && path.starts_with(readOnlyPath);
  }
  [[nodiscard]] bool isProtected(const std::string& path) const {
    return isReadOnly(path) || (folderIsProtected && !path.starts_with("temporary/"));
  }
  /// Counts one more operation; whether it is to fail.
  bool fails() {
    ++calls;
    if (calls == cutAtCall_) throw PowerCut();
    return failingCall != 0 && (calls == failingCall || (stayBroken && calls > failingCall));
  }
  [[nodiscard]] std::size_t freeRoom() const {
    std::size_t used = 0;
    for (const auto& [path, file] : files) used += file.content.size();
    return room - std::min(room, used);
  }

  std::map<std::string, std::weak_ptr<void>> claims_;
  int cutAtCall_ = 0;
};

}  // namespace scorvane
