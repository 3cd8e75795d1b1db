// The few things the program does with files: a port with a side for each system and one for tests
// that makes every step of a save fail. The sides take no decision.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace scorvane {

/// How a file operation ended.
enum class FileOutcome {
  done,
  denied,  ///< rights, a write-protected folder or medium, or a file that is in use
  exists,  ///< a file of that name is there already
  failed,  ///< anything else: disk full, drive gone, broken medium
};

/// What is known about a path before writing to it.
struct FileStatus {
  bool exists = false;
  bool isRegular = false;      ///< a plain file: no folder, device or pipe
  bool isReadOnly = false;     ///< marked as not to be written
  bool hasOtherNames = false;  ///< hard links: the same file under other names
  std::string identity = {};   ///< the same under each of its names; empty when that is not known
};

/// A file open for reading, from its start. Destroying it closes it.
class InputFile {
 public:
  InputFile() = default;
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;
  virtual ~InputFile() = default;

  /// Its length in bytes as the system says; 0 where that is not known, as for a pipe.
  [[nodiscard]] virtual std::uint64_t size() const = 0;
  /// Reads up to `room` bytes (above 0) and returns how many; 0 only at the end of the file;
  /// nothing on an error.
  [[nodiscard]] virtual std::optional<std::size_t> read(char* to, std::size_t room) = 0;
};

/// A file open for writing. Destroying it closes it and ignores errors.
class OutputFile {
 public:
  OutputFile() = default;
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  virtual ~OutputFile() = default;

  /// Writes at the current position, at first the start. False unless all bytes were written.
  [[nodiscard]] virtual bool write(std::string_view bytes) = 0;
  /// Cuts the file or makes it longer. False when the disk has no room for that.
  [[nodiscard]] virtual bool resize(std::uint64_t size) = 0;
  /// Waits until what was written is on the disk.
  [[nodiscard]] virtual bool flush() = 0;
  [[nodiscard]] virtual bool close() = 0;
};

/// Times of the clock and of files count in units of 100 nanoseconds from the start of 1970 (UTC).
inline constexpr std::int64_t kTicksPerSecond = 10'000'000;

/// One line of a folder's list.
struct ListedFile {
  std::string name;
  bool isFolder = false;
  std::uint64_t size = 0;
  std::int64_t changed = 0;  ///< when it was last written to
};

/// What changes with a file's content, as far as the system's clock is fine enough.
struct FileStamp {
  std::uint64_t size = 0;
  std::int64_t changed = 0;  ///< when it was last written to
  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// Larger files are not read: no contest comes near, and a device without end must not hang.
inline constexpr std::uint64_t kMaxFileSize = std::uint64_t{1} << 30;

inline constexpr const char* kClaimEnding = ".lock";

/// Paths are UTF-8 on Windows (text/unicode.h) and any bytes elsewhere; one that names no file
/// there reaches none.
class FileSystem {
 public:
  FileSystem() = default;
  FileSystem(const FileSystem&) = delete;
  FileSystem& operator=(const FileSystem&) = delete;
  virtual ~FileSystem() = default;

  /// Null when the file cannot be opened.
  [[nodiscard]] virtual std::unique_ptr<InputFile> openToRead(const std::string& path) = 0;
  /// All bytes of a file; nothing when it cannot be opened or read to its end, is a folder, or has
  /// more than `most` bytes.
  [[nodiscard]] std::optional<std::string> readWhole(const std::string& path,
                                                     std::uint64_t most = kMaxFileSize);

  /// The full name of the file that a path means, links followed: as far as the system tells the
  /// same one for all paths that mean it, hard links aside. The file need not exist; nothing when
  /// its folder does not.
  [[nodiscard]] virtual std::optional<std::string> resolve(const std::string& path) = 0;
  /// Nothing when the system does not say.
  [[nodiscard]] virtual std::optional<FileStatus> status(const std::string& path) = 0;

  struct Opened {
    FileOutcome outcome = FileOutcome::failed;
    std::unique_ptr<OutputFile> file;  ///< with `done` only
  };
  /// Creates a file that must not exist yet.
  [[nodiscard]] virtual Opened create(const std::string& path) = 0;
  /// Opens an existing file to overwrite its content.
  [[nodiscard]] virtual Opened openExisting(const std::string& path) = 0;

  /// Renames `from` to `to` in one step, on the disk when it returns. A file of that name is
  /// replaced; the new one takes over its rights and attributes.
  [[nodiscard]] virtual FileOutcome replace(const std::string& from, const std::string& to) = 0;
  /// Removes a file. Nothing is reported: no caller minds a file that stays.
  virtual void remove(const std::string& path) = 0;

  enum class Place { beside, temporaryFolder };
  /// A name in the folder of `path`, or in the one for temporary files, that no other process uses;
  /// another one for each attempt.
  [[nodiscard]] virtual std::string temporaryName(const std::string& path, Place place,
                                                  int attempt) = 0;
  virtual void pause(int milliseconds) = 0;

  struct Claim {
    FileOutcome outcome = FileOutcome::failed;  ///< `denied` while another program has it
    std::shared_ptr<void> hold;                 ///< with `done` only; destroying it ends the claim
  };
  /// Keeps other copies of the program on this machine from saving to the same path until the
  /// result is destroyed. Waits for at most so many milliseconds: a lock that cannot be had is no
  /// reason not to save.
  [[nodiscard]] virtual Claim lockForSaving(const std::string& path, int patience) = 0;
  static constexpr int kSavePatience = 5000;

  /// Opens a file for writing behind its content; makes it when there is none.
  [[nodiscard]] virtual Opened openToAppend(const std::string& path) = 0;
  /// What a folder holds, sorted by name; empty when it cannot be read or does not exist.
  [[nodiscard]] virtual std::vector<ListedFile> list(const std::string& folder) = 0;
  /// Makes a folder and those it lies in, as far as they are missing.
  [[nodiscard]] virtual bool makeFolders(const std::string& folder) = 0;
  /// Where programs keep what belongs to the operator on this machine; empty when there is no such
  /// folder.
  [[nodiscard]] virtual std::string localDataFolder() = 0;
  /// Nothing when it cannot be told. Asks the disk itself, not what is remembered of a share.
  [[nodiscard]] virtual std::optional<FileStamp> stamp(const std::string& path) = 0;
  /// When a file was last written to; nothing when that cannot be told.
  [[nodiscard]] std::optional<std::int64_t> lastChange(const std::string& path);
  [[nodiscard]] virtual std::int64_t now() = 0;

  /// Claims a path for this program alone, on all machines that reach it, by a file beside it of
  /// its name and kClaimEnding. The claim ends with the program at the latest, in whatever way that
  /// ends.
  [[nodiscard]] virtual Claim claim(const std::string& path) = 0;
};

/// The files of this machine.
[[nodiscard]] FileSystem& systemFiles();

}  // namespace scorvane
