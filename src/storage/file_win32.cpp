#include <windows.h>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "storage/file.h"
#include "text/unicode_win32.h"

namespace scorvane {

namespace {

/// An open file; closed at the end of its life.
class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { static_cast<void>(close()); }

  [[nodiscard]] bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  [[nodiscard]] HANDLE get() const { return handle_; }
  bool close() {
    return !isOpen() || CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)) != 0;
  }

 private:
  HANDLE handle_;
};

FileOutcome outcomeOf(DWORD error) {
  switch (error) {
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
      return FileOutcome::exists;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
    case ERROR_USER_MAPPED_FILE:
      return FileOutcome::denied;
    default:
      return FileOutcome::failed;
  }
}

std::wstring inFull(const std::wstring& path) {
  const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring full(size, L'\0');
  full.resize(GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
  return full;
}

/// The path as the system takes it: in UTF-16, and in full where it is long, as that avoids the
/// usual limit of 260 characters. Empty, which names no file, for a path that is no UTF-8.
std::wstring systemPath(const std::string& path) {
  constexpr std::size_t kUsualLimit = 240;
  const std::wstring full = inFull(wideOf(path).value_or(L""));
  if (full.size() < kUsualLimit || full.starts_with(L"\\\\?\\")) return full;
  if (full.starts_with(L"\\\\")) return L"\\\\?\\UNC\\" + full.substr(2);
  return L"\\\\?\\" + full;
}

/// A name in full as the program keeps it: without the mark of long paths, unless it protects a
/// name that Windows would change, such as one that ends with a blank.
std::string keptPath(const std::wstring& full) {
  std::wstring plain = full;
  if (full.starts_with(L"\\\\?\\UNC\\")) {
    plain = L"\\\\" + full.substr(8);
  } else if (full.starts_with(L"\\\\?\\")) {
    plain = full.substr(4);
  }
  return utf8OfWide(inFull(plain) == plain ? plain : full);
}

/// What a call that fills a buffer of the size it says returns.
template <typename Call>
std::wstring filled(const Call& call) {
  std::wstring text(call(nullptr, DWORD{0}), L'\0');
  const DWORD length = call(text.data(), static_cast<DWORD>(text.size()));
  text.resize(length < text.size() ? length : 0);
  return text;
}

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// A file or folder opened to ask about it, which goes even while it is locked.
Handle openToAsk(const std::wstring& full) {
  return Handle(CreateFileW(full.c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr, OPEN_EXISTING,
                            FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

/// The one name of an existing file or folder that all its others lead to: links followed, drive
/// letters of shares resolved, in capitals and long form as the disk has it. Empty when the system
/// does not tell.
std::wstring finalName(const std::wstring& full) {
  const Handle file = openToAsk(full);
  if (!file.isOpen()) return {};
  const std::wstring found = filled([&file](wchar_t* to, DWORD room) {
    return GetFinalPathNameByHandleW(file.get(), to, room, 0);
  });
  const std::wstring name = filled(
      [&found](wchar_t* to, DWORD room) { return GetLongPathNameW(found.c_str(), to, room); });
  return name.empty() ? found : name;
}

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.find_last_of("\\/");
  if (slash != std::string::npos) return path.substr(0, slash + 1);
  return path.size() >= 2 && path[1] == ':' ? path.substr(0, 2) : std::string();
}

/// Ends with a backslash.
std::string temporaryFolder() {
  std::array<wchar_t, MAX_PATH + 1> folder{};
  const DWORD length = GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
  return utf8OfWide({folder.data(), std::min<std::size_t>(length, MAX_PATH)});
}

class WindowsInputFile : public InputFile {
 public:
  WindowsInputFile(Handle handle, std::uint64_t size) : handle_(std::move(handle)), size_(size) {}

  [[nodiscard]] std::uint64_t size() const override { return size_; }

  std::optional<std::size_t> read(char* to, std::size_t room) override {
    constexpr std::size_t kMostAtOnce = std::size_t{16} << 20;
    const auto wanted = static_cast<DWORD>(std::min(room, kMostAtOnce));
    DWORD count = 0;
    if (ReadFile(handle_.get(), to, wanted, &count, nullptr) == 0) return std::nullopt;
    return count;
  }

 private:
  Handle handle_;
  std::uint64_t size_;
};

class WindowsOutputFile : public OutputFile {
 public:
  explicit WindowsOutputFile(HANDLE handle) : handle_(handle) {}

  bool write(std::string_view bytes) override {
    constexpr std::size_t kMostAtOnce = std::size_t{1} << 20;  // some network drives take no more
    while (!bytes.empty()) {
      const auto count = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
      DWORD written = 0;
      if (WriteFile(handle_.get(), bytes.data(), count, &written, nullptr) == 0) return false;
      if (written == 0) return false;
      bytes.remove_prefix(written);
    }
    return true;
  }

  bool resize(std::uint64_t size) override {
    LARGE_INTEGER position;
    position.QuadPart = 0;
    LARGE_INTEGER before;
    if (SetFilePointerEx(handle_.get(), position, &before, FILE_CURRENT) == 0) return false;
    position.QuadPart = static_cast<LONGLONG>(size);
    if (SetFilePointerEx(handle_.get(), position, nullptr, FILE_BEGIN) == 0) return false;
    const bool resized = SetEndOfFile(handle_.get()) != 0;
    return SetFilePointerEx(handle_.get(), before, nullptr, FILE_BEGIN) != 0 && resized;
  }

  bool flush() override { return FlushFileBuffers(handle_.get()) != 0; }
  bool close() override { return handle_.close(); }

 private:
  Handle handle_;
};

FileSystem::Opened openForWriting(const std::string& path, DWORD disposition,
                                  DWORD start = FILE_BEGIN) {
  // Others may read meanwhile, but not write.
  const HANDLE handle = CreateFileW(systemPath(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ,
                                    nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return {outcomeOf(GetLastError()), nullptr};
  auto file = std::make_unique<WindowsOutputFile>(handle);
  if (SetFilePointerEx(handle, {}, nullptr, start) == 0) return {};
  return {FileOutcome::done, std::move(file)};
}

/// Gives the new file the rights, attributes and time of creation of the old one.
void passOnRights(const std::wstring& from, const std::wstring& to) {
  DWORD size = 0;
  GetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<std::byte> rights(size);
  if (size > 0 &&
      GetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, rights.data(), size, &size) != 0) {
    SetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, rights.data());
  }
  WIN32_FILE_ATTRIBUTE_DATA old;
  if (GetFileAttributesExW(to.c_str(), GetFileExInfoStandard, &old) == 0) return;
  {
    const Handle file(CreateFileW(from.c_str(), FILE_WRITE_ATTRIBUTES, kShareAll, nullptr,
                                  OPEN_EXISTING, 0, nullptr));
    if (file.isOpen()) SetFileTime(file.get(), &old.ftCreationTime, nullptr, nullptr);
  }
  constexpr DWORD kPassedOn = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                              FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
  if ((old.dwFileAttributes & kPassedOn) != 0) {
    SetFileAttributesW(from.c_str(), (old.dwFileAttributes & kPassedOn) | FILE_ATTRIBUTE_ARCHIVE);
  }
}

std::int64_t ticksOf(const FILETIME& time) {
  constexpr std::int64_t kStartOf1970 = 116'444'736'000'000'000;
  return ((std::int64_t{time.dwHighDateTime} << 32) | time.dwLowDateTime) - kStartOf1970;
}

class WindowsFileSystem : public FileSystem {
 public:
  std::unique_ptr<InputFile> openToRead(const std::string& path) override {
    Handle file(CreateFileW(systemPath(path).c_str(), GENERIC_READ, kShareAll, nullptr,
                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER size;
    if (!file.isOpen() || GetFileType(file.get()) != FILE_TYPE_DISK) return nullptr;
    if (GetFileSizeEx(file.get(), &size) == 0) return nullptr;
    return std::make_unique<WindowsInputFile>(std::move(file),
                                              static_cast<std::uint64_t>(size.QuadPart));
  }

  std::optional<std::string> resolve(const std::string& path) override {
    const std::wstring full = systemPath(path);
    const DWORD attributes = GetFileAttributesW(full.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
      if (GetLastError() != ERROR_FILE_NOT_FOUND) return std::nullopt;
      const std::size_t name = full.rfind(L'\\') + 1;
      const std::wstring folder = finalName(full.substr(0, name));
      if (folder.empty()) return keptPath(full);
      return keptPath(folder + (folder.ends_with(L'\\') ? L"" : L"\\") + full.substr(name));
    }
    const std::wstring name = finalName(full);
    if (!name.empty()) return keptPath(name);
    const bool isLink = (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    return isLink ? std::nullopt : std::optional(keptPath(full));
  }

  std::optional<FileStatus> status(const std::string& path) override {
    const std::wstring full = systemPath(path);
    FileStatus status;
    const DWORD attributes = GetFileAttributesW(full.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
      return GetLastError() == ERROR_FILE_NOT_FOUND ? std::optional(status) : std::nullopt;
    }
    status.exists = true;
    status.isRegular = (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) == 0;
    status.isReadOnly = (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    const Handle file = openToAsk(full);
    BY_HANDLE_FILE_INFORMATION facts;
    if (file.isOpen() && GetFileInformationByHandle(file.get(), &facts) != 0) {
      status.hasOtherNames = facts.nNumberOfLinks > 1;
      status.identity = std::to_string(facts.dwVolumeSerialNumber) + "-" +
                        std::to_string(facts.nFileIndexHigh) + "-" +
                        std::to_string(facts.nFileIndexLow);
    }
    return status;
  }

  Opened create(const std::string& path) override { return openForWriting(path, CREATE_NEW); }
  Opened openExisting(const std::string& path) override {
    return openForWriting(path, OPEN_EXISTING);
  }

  // Not ReplaceFile(), which renames twice: a crash in between would leave no file of the
  // contest's name. What ReplaceFile() would pass on is passed on here first.
  FileOutcome replace(const std::string& from, const std::string& to) override {
    const std::wstring source = systemPath(from);
    const std::wstring target = systemPath(to);
    passOnRights(source, target);
    const DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (MoveFileExW(source.c_str(), target.c_str(), flags) != 0) return FileOutcome::done;
    return outcomeOf(GetLastError());
  }

  void remove(const std::string& path) override { DeleteFileW(systemPath(path).c_str()); }

  std::string temporaryName(const std::string& path, Place place, int attempt) override {
    return (place == Place::beside ? folderOf(path) : temporaryFolder()) + "~scorvane-" +
           std::to_string(GetCurrentProcessId()) + "-" + std::to_string(attempt) + ".tmp";
  }

  void pause(int milliseconds) override { Sleep(static_cast<DWORD>(milliseconds)); }

  // One lock for all paths, as one file has many names. Windows frees that of a killed program.
  Claim lockForSaving(const std::string& /*path*/, int patience) override {
    std::shared_ptr<void> lock(CreateMutexA(nullptr, FALSE, "Scorvane saves"), [](HANDLE mutex) {
      ReleaseMutex(mutex);
      CloseHandle(mutex);
    });
    const DWORD waited = WaitForSingleObject(lock.get(), static_cast<DWORD>(patience));
    const bool isHeld = waited == WAIT_OBJECT_0 || waited == WAIT_ABANDONED;
    return {isHeld ? FileOutcome::done : FileOutcome::denied, isHeld ? std::move(lock) : nullptr};
  }

  Opened openToAppend(const std::string& path) override {
    return openForWriting(path, OPEN_ALWAYS, FILE_END);
  }

  std::vector<ListedFile> list(const std::string& folder) override {
    std::vector<ListedFile> files;
    WIN32_FIND_DATAW entry;
    const std::wstring full = systemPath(folder);
    if (full.empty()) return files;
    const HANDLE search = FindFirstFileW((full + L"\\*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) return files;
    do {
      const std::wstring name = entry.cFileName;
      if (name == L"." || name == L"..") continue;
      files.push_back({utf8OfWide(name), (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
                       (std::uint64_t{entry.nFileSizeHigh} << 32) | entry.nFileSizeLow,
                       ticksOf(entry.ftLastWriteTime)});
    } while (FindNextFileW(search, &entry) != 0);
    FindClose(search);
    std::sort(files.begin(), files.end(),
              [](const ListedFile& a, const ListedFile& b) { return a.name < b.name; });
    return files;
  }

  bool makeFolders(const std::string& folder) override {
    const std::wstring full = systemPath(folder);
    for (std::size_t end = full.find(L'\\'); end != std::wstring::npos;
         end = full.find(L'\\', end + 1)) {
      CreateDirectoryW(full.substr(0, end).c_str(), nullptr);
    }
    CreateDirectoryW(full.c_str(), nullptr);
    const DWORD attributes = GetFileAttributesW(full.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  }

  std::string localDataFolder() override {
    std::array<wchar_t, MAX_PATH> folder{};
    const DWORD length =
        GetEnvironmentVariableW(L"LOCALAPPDATA", folder.data(), static_cast<DWORD>(folder.size()));
    return length < folder.size() ? utf8OfWide(folder.data()) : std::string();
  }

  // Of a file on a share Windows remembers for seconds what it would say without opening it.
  std::optional<FileStamp> stamp(const std::string& path) override {
    const Handle file = openToAsk(systemPath(path));
    BY_HANDLE_FILE_INFORMATION facts;
    if (!file.isOpen() || GetFileInformationByHandle(file.get(), &facts) == 0) return std::nullopt;
    return FileStamp{(std::uint64_t{facts.nFileSizeHigh} << 32) | facts.nFileSizeLow,
                     ticksOf(facts.ftLastWriteTime)};
  }

  std::int64_t now() override {
    FILETIME time;
    GetSystemTimeAsFileTime(&time);
    return ticksOf(time);
  }

  // Windows closes the file of a killed program, and removes it then.
  Claim claim(const std::string& path) override {
    auto file = std::make_shared<Handle>(
        CreateFileW(systemPath(path + kClaimEnding).c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
    if (file->isOpen()) return {FileOutcome::done, std::move(file)};
    return {outcomeOf(GetLastError()), nullptr};
  }
};

}  // namespace

FileSystem& systemFiles() {
  static WindowsFileSystem files;
  return files;
}

}  // namespace scorvane
