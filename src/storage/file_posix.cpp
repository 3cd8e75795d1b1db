#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>
#include <utility>

#include "storage/file.h"

namespace scorvane {

namespace {

/// An open file descriptor; closed at the end of its life.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { static_cast<void>(close()); }

  [[nodiscard]] bool isOpen() const { return number_ >= 0; }
  [[nodiscard]] int number() const { return number_; }
  bool close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

FileOutcome outcomeOf(int error) {
  switch (error) {
    case EEXIST:
      return FileOutcome::exists;
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
    case EBUSY:
      return FileOutcome::denied;
    default:
      return FileOutcome::failed;
  }
}

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

class PosixInputFile : public InputFile {
 public:
  PosixInputFile(Descriptor descriptor, std::uint64_t size)
      : descriptor_(std::move(descriptor)), size_(size) {}

  [[nodiscard]] std::uint64_t size() const override { return size_; }

  std::optional<std::size_t> read(char* to, std::size_t room) override {
    for (;;) {
      const ssize_t count = ::read(descriptor_.number(), to, room);
      if (count >= 0) return static_cast<std::size_t>(count);
      if (errno != EINTR) return std::nullopt;
    }
  }

 private:
  Descriptor descriptor_;
  std::uint64_t size_;
};

class PosixOutputFile : public OutputFile {
 public:
  explicit PosixOutputFile(int number) : descriptor_(number) {}

  bool write(std::string_view bytes) override {
    while (!bytes.empty()) {
      const ssize_t written = ::write(descriptor_.number(), bytes.data(), bytes.size());
      if (written < 0 && errno == EINTR) continue;
      if (written <= 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
  }

  bool resize(std::uint64_t size) override {
    struct stat status {};
    if (::fstat(descriptor_.number(), &status) != 0) return false;
    const auto length = static_cast<off_t>(size);
    // ftruncate() alone would make a file longer without room for it on the disk.
    if (length > status.st_size) return ::posix_fallocate(descriptor_.number(), 0, length) == 0;
    return ::ftruncate(descriptor_.number(), length) == 0;
  }

  bool flush() override { return ::fsync(descriptor_.number()) == 0; }
  bool close() override { return descriptor_.close(); }

 private:
  Descriptor descriptor_;
};

FileSystem::Opened opened(int descriptor) {
  if (descriptor < 0) return {outcomeOf(errno), nullptr};
  return {FileOutcome::done, std::make_unique<PosixOutputFile>(descriptor)};
}

/// Gives the new file the owner and rights of the old one.
void passOnRights(const std::string& from, const std::string& to) {
  struct stat status {};
  if (::stat(to.c_str(), &status) != 0) return;
  // Usually only the superuser may change the owner; the file stays the operator's own then.
  if (::chown(from.c_str(), status.st_uid, status.st_gid) != 0) errno = 0;
  if (::chmod(from.c_str(), status.st_mode & 07777) != 0) errno = 0;
}

/// A renamed file survives a power cut once its folder is on the medium.
bool flushFolder(const std::string& folder) {
  const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!descriptor.isOpen()) return errno == EACCES;
  return ::fsync(descriptor.number()) == 0 || errno == EINVAL;
}

std::optional<std::string> realPath(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.c_str(), nullptr),
                                                             &std::free);
  if (resolved == nullptr) return std::nullopt;
  return std::string(resolved.get());
}

std::optional<std::string> linkTarget(const std::string& path) {
  std::string target(4096, '\0');
  const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
  if (length < 0) return std::nullopt;
  target.resize(static_cast<std::size_t>(length));
  return target.starts_with('/') ? target : folderOf(path) + "/" + target;
}

std::int64_t ticksOf(const struct timespec& time) {
  return std::int64_t{time.tv_sec} * kTicksPerSecond + time.tv_nsec / 100;
}

/// A file locked for as long as this lives; its name goes first, so that nobody locks a file
/// without one.
struct ClaimLock {
  ClaimLock(int number, std::string path) : file(number), name(std::move(path)) {}
  ClaimLock(const ClaimLock&) = delete;
  ClaimLock& operator=(const ClaimLock&) = delete;
  ~ClaimLock() {
    if (isHeld) ::unlink(name.c_str());
  }

  Descriptor file;
  std::string name;
  bool isHeld = false;
};

/// A folder that may be locked. Unlocked explicitly: POSIX leaves open whether a failed close()
/// closes.
struct SaveLock {
  explicit SaveLock(int number) : folder(number) {}
  SaveLock(const SaveLock&) = delete;
  SaveLock& operator=(const SaveLock&) = delete;
  ~SaveLock() { ::flock(folder.number(), LOCK_UN); }

  Descriptor folder;
};

class PosixFileSystem : public FileSystem {
 public:
  std::unique_ptr<InputFile> openToRead(const std::string& path) override {
    Descriptor descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat status {};
    if (!descriptor.isOpen() || ::fstat(descriptor.number(), &status) != 0) return nullptr;
    const auto size = static_cast<std::uint64_t>(status.st_size);
    return std::make_unique<PosixInputFile>(std::move(descriptor), size);
  }

  std::optional<std::string> resolve(const std::string& path) override {
    constexpr int kMaxLinks = 40;
    std::string file = path;
    for (int i = 0; i < kMaxLinks; ++i) {
      if (auto whole = realPath(file)) return whole;
      if (errno != ENOENT) return std::nullopt;
      // A link to a file that does not exist yet names the file to be made.
      auto target = linkTarget(file);
      if (!target) break;
      file = std::move(*target);
    }
    const auto folder = realPath(folderOf(file));
    const std::string name = file.substr(file.rfind('/') + 1);
    if (!folder || name.empty()) return std::nullopt;
    return (*folder == "/" ? "" : *folder) + "/" + name;
  }

  std::optional<FileStatus> status(const std::string& path) override {
    struct stat found {};
    FileStatus status;
    if (::stat(path.c_str(), &found) != 0) {
      return errno == ENOENT ? std::optional(status) : std::nullopt;
    }
    status.exists = true;
    status.isRegular = S_ISREG(found.st_mode);
    // The mode counts as well: access() lets the superuser write everything.
    const mode_t anyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
    status.isReadOnly = (found.st_mode & anyWrite) == 0 || ::access(path.c_str(), W_OK) != 0;
    status.hasOtherNames = found.st_nlink > 1;
    status.identity = std::to_string(found.st_dev) + "-" + std::to_string(found.st_ino);
    return status;
  }

  Opened create(const std::string& path) override {
    return opened(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
  }
  Opened openExisting(const std::string& path) override {
    return opened(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
  }

  FileOutcome replace(const std::string& from, const std::string& to) override {
    passOnRights(from, to);
    if (::rename(from.c_str(), to.c_str()) != 0) return outcomeOf(errno);
    return flushFolder(folderOf(to)) ? FileOutcome::done : FileOutcome::failed;
  }

  void remove(const std::string& path) override { static_cast<void>(::unlink(path.c_str())); }

  std::string temporaryName(const std::string& path, Place place, int attempt) override {
    std::error_code ignored;
    const std::string folder = place == Place::beside
                                   ? folderOf(path)
                                   : std::filesystem::temp_directory_path(ignored).string();
    return folder + "/~scorvane-" + std::to_string(::getpid()) + "-" + std::to_string(attempt) +
           ".tmp";
  }

  void pause(int milliseconds) override {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
  }

  // Locks the folder, since every save replaces the file by another one.
  Claim lockForSaving(const std::string& path, int patience) override {
    auto lock = std::make_shared<SaveLock>(
        ::open(folderOf(resolve(path).value_or(path)).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    constexpr int kPause = 10;
    for (int waited = 0; waited < patience; waited += kPause) {
      if (::flock(lock->folder.number(), LOCK_EX | LOCK_NB) == 0) return {FileOutcome::done, lock};
      if (errno != EWOULDBLOCK) return {};
      pause(kPause);
    }
    return {FileOutcome::denied, nullptr};
  }

  Opened openToAppend(const std::string& path) override {
    return opened(::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666));
  }

  std::vector<ListedFile> list(const std::string& folder) override {
    std::vector<ListedFile> files;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
      struct stat status {};
      if (::stat(entry->path().c_str(), &status) != 0) continue;
      files.push_back({entry->path().filename().string(), S_ISDIR(status.st_mode),
                       static_cast<std::uint64_t>(status.st_size), ticksOf(status.st_mtim)});
    }
    std::sort(files.begin(), files.end(),
              [](const ListedFile& a, const ListedFile& b) { return a.name < b.name; });
    return files;
  }

  bool makeFolders(const std::string& folder) override {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    return std::filesystem::is_directory(folder, error);
  }

  std::string localDataFolder() override {
    if (const char* folder = std::getenv("XDG_DATA_HOME"); folder != nullptr && *folder == '/') {
      return folder;
    }
    const char* home = std::getenv("HOME");
    return home == nullptr || *home == '\0' ? "" : std::string(home) + "/.local/share";
  }

  std::optional<FileStamp> stamp(const std::string& path) override {
    struct stat found {};
    if (::stat(path.c_str(), &found) != 0) return std::nullopt;
    return FileStamp{static_cast<std::uint64_t>(found.st_size), ticksOf(found.st_mtim)};
  }

  std::int64_t now() override {
    struct timespec time {};
    ::clock_gettime(CLOCK_REALTIME, &time);
    return ticksOf(time);
  }

  Claim claim(const std::string& path) override {
    const std::string name = path + kClaimEnding;
    auto lock = std::make_shared<ClaimLock>(
        ::open(name.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666), name);
    if (!lock->file.isOpen()) return {};
    if (::flock(lock->file.number(), LOCK_EX | LOCK_NB) != 0) {
      return {errno == EWOULDBLOCK ? FileOutcome::denied : FileOutcome::failed, nullptr};
    }
    // Whoever had it before may have taken the name away meanwhile.
    struct stat held {};
    struct stat named {};
    if (::fstat(lock->file.number(), &held) != 0 || ::stat(name.c_str(), &named) != 0 ||
        held.st_ino != named.st_ino) {
      return {FileOutcome::denied, nullptr};
    }
    lock->isHeld = true;
    return {FileOutcome::done, std::move(lock)};
  }
};

}  // namespace

FileSystem& systemFiles() {
  static PosixFileSystem files;
  return files;
}

}  // namespace scorvane
