#include <windows.h>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "storage/file.h"

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

std::wstring wide(const std::string& text) {
  const auto size = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0);
  std::wstring result(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text.data(), size, result.data(), length);
  return result;
}

/// The path as the system takes it: in UTF-16, and in full where it is long, as that avoids the
/// usual limit of 260 characters.
std::wstring systemPath(const std::string& path) {
  constexpr std::size_t kUsualLimit = 240;
  const std::wstring given = wide(path);
  const DWORD size = GetFullPathNameW(given.c_str(), 0, nullptr, nullptr);
  std::wstring full(size, L'\0');
  full.resize(GetFullPathNameW(given.c_str(), size, full.data(), nullptr));
  if (full.size() < kUsualLimit || full.starts_with(L"\\\\?\\")) return full;
  if (full.starts_with(L"\\\\")) return L"\\\\?\\UNC\\" + full.substr(2);
  return L"\\\\?\\" + full;
}

std::string narrow(const std::wstring& text) {
  const auto size = static_cast<int>(text.size());
  const int length =
      WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_ACP, 0, text.data(), size, result.data(), length, nullptr, nullptr);
  return result;
}

/// A full name as 8-bit text; the path as given when it has characters that 8-bit text lacks.
std::string pathOf(const std::wstring& full, const std::string& given) {
  std::string path = narrow(full);
  return wide(path) == full ? path : given;
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
  return narrow({folder.data(), std::min<std::size_t>(length, MAX_PATH)});
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

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

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

/// The folder's name in 8-bit text: its short form (8.3) when the long one has other characters.
std::string narrowFolder(const std::wstring& folder) {
  const std::string path = narrow(folder);
  if (wide(path) == folder) return path;
  std::wstring brief(MAX_PATH, L'\0');
  brief.resize(std::min<std::size_t>(
      GetShortPathNameW(folder.c_str(), brief.data(), static_cast<DWORD>(brief.size())),
      brief.size()));
  return narrow(brief);
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
    if (path.empty()) return std::nullopt;
    const std::wstring full = systemPath(path);
    const DWORD attributes = GetFileAttributesW(full.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
      const DWORD error = GetLastError();
      return error == ERROR_FILE_NOT_FOUND ? std::optional(pathOf(full, path)) : std::nullopt;
    }
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return pathOf(full, path);
    const Handle file(CreateFileW(full.c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!file.isOpen()) return std::nullopt;
    const DWORD size = GetFinalPathNameByHandleW(file.get(), nullptr, 0, 0);
    std::wstring target(size, L'\0');
    target.resize(std::min(GetFinalPathNameByHandleW(file.get(), target.data(), size, 0), size));
    return target.empty() ? std::nullopt : std::optional(pathOf(target, path));
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
    const Handle file(CreateFileW(full.c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr,
                                  OPEN_EXISTING, 0, nullptr));
    BY_HANDLE_FILE_INFORMATION information;
    status.hasOtherNames = file.isOpen() &&
                           GetFileInformationByHandle(file.get(), &information) != 0 &&
                           information.nNumberOfLinks > 1;
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
  std::shared_ptr<void> lockForSaving(const std::string& /*path*/) override {
    constexpr DWORD kPatience = 5000;
    std::shared_ptr<void> lock(CreateMutexA(nullptr, FALSE, "Scorvane saves"), [](HANDLE mutex) {
      ReleaseMutex(mutex);
      CloseHandle(mutex);
    });
    WaitForSingleObject(lock.get(), kPatience);
    return lock;
  }

  Opened openToAppend(const std::string& path) override {
    return openForWriting(path, OPEN_ALWAYS, FILE_END);
  }

  std::vector<ListedFile> list(const std::string& folder) override {
    std::vector<ListedFile> files;
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW((systemPath(folder) + L"\\*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) return files;
    do {
      const std::wstring name = entry.cFileName;
      if (name == L"." || name == L"..") continue;
      files.push_back({narrow(name), (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
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
    return length < folder.size() ? narrowFolder(folder.data()) : std::string();
  }

  std::optional<std::int64_t> lastChange(const std::string& path) override {
    WIN32_FILE_ATTRIBUTE_DATA facts;
    if (GetFileAttributesExW(systemPath(path).c_str(), GetFileExInfoStandard, &facts) == 0) {
      return std::nullopt;
    }
    return ticksOf(facts.ftLastWriteTime);
  }

  std::int64_t now() override {
    FILETIME time;
    GetSystemTimeAsFileTime(&time);
    return ticksOf(time);
  }

  // Windows closes the file of a killed program, and removes it then.
  Claim claim(const std::string& path) override {
    auto file = std::make_shared<Handle>(
        CreateFileW(systemPath(path + ".lock").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
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
