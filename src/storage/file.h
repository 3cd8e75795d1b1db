// The few things the program does with files. Behind a port, so that tests can make every step of
// a save fail; the sides of this port take no decision.
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

/// What is known of a path before writing to it.
struct FileStatus {
  bool exists = false;
  bool isRegular = false;      ///< a plain file: no folder, device or pipe
  bool isReadOnly = false;     ///< marked as not to be written
  bool hasOtherNames = false;  ///< hard links: the same file under other names
};

/// A file open for reading, from its start on. Destroying it closes it.
class InputFile {
 public:
  InputFile() = default;
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;
  virtual ~InputFile() = default;

  /// How many bytes it holds, as far as the system tells beforehand: 0 for a pipe, say.
  [[nodiscard]] virtual std::uint64_t size() const = 0;
  /// Reads the next bytes, as many as there is room for at most (`room` above 0), and gives their
  /// number: 0 at the end of the file only. Nothing when they cannot be read.
  [[nodiscard]] virtual std::optional<std::size_t> read(char* to, std::size_t room) = 0;
};

/// A file open for writing. Destroying it closes it, whatever that brings.
class OutputFile {
 public:
  OutputFile() = default;
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  virtual ~OutputFile() = default;

  /// Writes all bytes from the current position on, the start at first. False when the medium did
  /// not take all of them.
  [[nodiscard]] virtual bool write(std::string_view bytes) = 0;
  /// Cuts the file or makes it longer; false when there is no room for a longer one.
  [[nodiscard]] virtual bool resize(std::uint64_t size) = 0;
  /// Waits until the medium holds what was written.
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

/// Paths are 8-bit text as the operator's system understands it, at most kMaxPathLength bytes.
class FileSystem {
 public:
  FileSystem() = default;
  FileSystem(const FileSystem&) = delete;
  FileSystem& operator=(const FileSystem&) = delete;
  virtual ~FileSystem() = default;

  /// Null when the file cannot be opened or holds more than kMaxFileSize.
  [[nodiscard]] virtual std::unique_ptr<InputFile> openToRead(const std::string& path) = 0;
  /// All bytes of a file; nothing when it cannot be opened or read to its end, is a folder, or
  /// holds more than kMaxFileSize.
  [[nodiscard]] std::optional<std::string> readWhole(const std::string& path);

  /// The full name of the file that a path means, links followed; the file need not exist, its
  /// folder must. Nothing when there is no such place.
  [[nodiscard]] virtual std::optional<std::string> resolve(const std::string& path) = 0;
  /// Nothing when it cannot be told.
  [[nodiscard]] virtual std::optional<FileStatus> facts(const std::string& path) = 0;

  struct Opened {
    FileOutcome outcome = FileOutcome::failed;
    std::unique_ptr<OutputFile> file;  ///< with `done` only
  };
  /// Makes a file that must not exist yet.
  [[nodiscard]] virtual Opened create(const std::string& path) = 0;
  /// Opens a file that exists for writing over its content.
  [[nodiscard]] virtual Opened openExisting(const std::string& path) = 0;

  /// Gives `from` the name `to` in one step and makes that last. A file that already has that name
  /// is replaced; its rights and attributes pass to the new one.
  [[nodiscard]] virtual FileOutcome replace(const std::string& from, const std::string& to) = 0;
  /// Removes a file. A file that stays is no harm to any caller, so nothing is reported.
  virtual void remove(const std::string& path) = 0;

  enum class Place { beside, temporaryFolder };
  /// A name beside `path`, or in the folder for temporary files, that no other process makes;
  /// another one for each attempt.
  [[nodiscard]] virtual std::string temporaryName(const std::string& path, Place place,
                                                  int attempt) = 0;
  virtual void pause(int milliseconds) = 0;

  /// Keeps other copies of the program on this machine from taking a turn for the same path until
  /// the result is destroyed. Waits for five seconds at most: a turn that cannot be had is no
  /// reason not to save.
  [[nodiscard]] virtual std::shared_ptr<void> lockForSaving(const std::string& path) = 0;

  /// Opens a file for writing behind its content; makes it when there is none.
  [[nodiscard]] virtual Opened openToAppend(const std::string& path) = 0;
  /// What a folder holds, by name; nothing when it cannot be read or there is none.
  [[nodiscard]] virtual std::vector<ListedFile> list(const std::string& folder) = 0;
  /// Makes a folder and those it lies in, as far as they are missing.
  [[nodiscard]] virtual bool makeFolders(const std::string& folder) = 0;
  /// Where programs keep what belongs to the operator on this machine; empty when there is no such
  /// folder.
  [[nodiscard]] virtual std::string localDataFolder() = 0;
  /// When a file was last written to; nothing when that cannot be told.
  [[nodiscard]] virtual std::optional<std::int64_t> lastChange(const std::string& path) = 0;
  [[nodiscard]] virtual std::int64_t now() = 0;

  struct Claim {
    FileOutcome outcome = FileOutcome::failed;  ///< `denied` while another program has it
    std::shared_ptr<void> hold;                 ///< with `done` only; destroying it ends the claim
  };
  /// Claims a path for this program alone, by a file beside it. The claim ends with the program at
  /// the latest, in whatever way that ends.
  [[nodiscard]] virtual Claim claim(const std::string& path) = 0;
};

/// Larger files are not read: no contest comes near, and a device without end must not hang.
inline constexpr std::uint64_t kMaxFileSize = std::uint64_t{1} << 30;

/// The files of this machine.
[[nodiscard]] FileSystem& systemFiles();

}  // namespace scorvane
