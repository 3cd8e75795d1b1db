// file_check FOLDER: saves into an empty folder under the circumstances that only Windows has, and
// says what went wrong. file_check FOLDER save: saves two contents in turn until it is killed.
#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "storage/file.h"
#include "storage/safe_save.h"

using namespace scorvane;

namespace {

const std::string kOld = "old content";
const std::string kNew = "new content, which is longer";

int failures = 0;

void check(bool holds, const char* what) {
  if (holds) return;
  std::printf("FAILED: %s\n", what);
  ++failures;
}

bool save(const std::string& path, const std::string& bytes) {
  return saveSafely(systemFiles(), path, bytes);
}

std::string contentOf(const std::string& path) {
  return systemFiles().readWhole(path).value_or("(unreadable)");
}

/// A file with the old content, made without the code under test.
std::string oldFile(const std::string& path, DWORD attributes = FILE_ATTRIBUTE_NORMAL) {
  const HANDLE file =
      CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, attributes, nullptr);
  DWORD written = 0;
  WriteFile(file, kOld.data(), static_cast<DWORD>(kOld.size()), &written, nullptr);
  CloseHandle(file);
  return path;
}

void checkOrdinarySaves(const std::string& folder) {
  const std::string path = folder + "\\made.scv";
  check(save(path, kOld) && contentOf(path) == kOld, "a new file");
  check(save(path, kNew) && contentOf(path) == kNew, "an old file replaced");
  SetCurrentDirectoryA(folder.c_str());
  check(save("relative.scv", kNew) && contentOf(folder + "\\relative.scv") == kNew,
        "a name without a folder");
  check(!save(folder + "\\none\\a.scv", kNew), "a folder that is not there");
  check(!save(folder, kNew), "a folder in place of a file");
  check(!save("", kNew), "no name");
}

void checkAttributes(const std::string& folder) {
  const std::string hidden = oldFile(folder + "\\hidden.scv", FILE_ATTRIBUTE_HIDDEN);
  check(save(hidden, kNew) && contentOf(hidden) == kNew, "a hidden file");
  check((GetFileAttributesA(hidden.c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0, "it stays hidden");

  const std::string readOnly = oldFile(folder + "\\read_only.scv", FILE_ATTRIBUTE_READONLY);
  check(!save(readOnly, kNew) && contentOf(readOnly) == kOld, "a read-only file is left alone");
}

void checkHardLinks(const std::string& folder) {
  const std::string path = oldFile(folder + "\\linked.scv");
  const std::string twin = folder + "\\twin.scv";
  CreateHardLinkA(twin.c_str(), path.c_str(), nullptr);
  check(save(path, kNew) && contentOf(path) == kNew && contentOf(twin) == kNew,
        "a file with two names keeps both");
}

void checkFilesInUse(const std::string& folder) {
  const std::string path = oldFile(folder + "\\in_use.scv");
  HANDLE reader = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              nullptr, OPEN_EXISTING, 0, nullptr);
  check(save(path, kNew) && contentOf(path) == kNew, "a file that another program reads");
  CloseHandle(reader);
  reader =
      CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  check(!save(path, kOld) && contentOf(path) == kNew, "a file that another program locks");
  CloseHandle(reader);
  check(save(path, kOld) && contentOf(path) == kOld, "the same file, free again");
}

void checkLongPath(const std::string& folder) {
  std::string path = folder;
  while (path.size() < 400) {
    path += "\\" + std::string(40, 'd');
    const std::string whole = "\\\\?\\" + path;
    CreateDirectoryW(std::wstring(whole.begin(), whole.end()).c_str(), nullptr);
  }
  path += "\\" + std::string(499 - path.size() - 1 - 4, 'n') + ".scv";
  check(path.size() == 499, "a path of 499 characters");
  check(save(path, kOld) && save(path, kNew) && contentOf(path) == kNew, "the longest path");
}

// Windows forbids names with control characters and nine more; of the bytes it allows none may
// fail.
void checkNames(const std::string& folder) {
  constexpr int kForbidden = 31 + 9;
  int saved = 0;
  for (int byte = 1; byte <= 255; ++byte) {
    const std::string path = folder + "\\n" + std::string(1, static_cast<char>(byte)) + "n.scv";
    if (!save(path, kOld)) continue;
    check(contentOf(path) == kOld, "a name that was saved to");
    ++saved;
  }
  check(saved >= 255 - kForbidden, "every byte in file names");
}

void checkFolders(const std::string& folder) {
  FileSystem& files = systemFiles();
  check(files.localDataFolder().ends_with("\\AppData\\Local"), "the folder of local data");
  const std::string inner = folder + "/one/two";
  check(files.makeFolders(inner) && files.makeFolders(inner), "folders made with slashes");
  const std::string path = inner + "/copy.scv";
  const std::int64_t before = files.now() - 2 * kTicksPerSecond;
  for (const std::string& bytes : {kOld, kNew}) {
    const auto opened = files.openToAppend(path);
    check(opened.file != nullptr && opened.file->write(bytes) && opened.file->flush(), "append");
    check(files.openToAppend(path).outcome == FileOutcome::denied, "a second writer");
    check(!save(path, kOld), "an open file is not replaced");
  }
  check(contentOf(path) == kOld + kNew, "what was appended");
  check(!files.makeFolders(path), "a file in place of a folder");
  {
    const FileSystem::Claim claim = files.claim(path);
    check(claim.outcome == FileOutcome::done, "a claim");
    check(files.claim(path).outcome == FileOutcome::denied, "a claim of what is claimed");
    check(files.list(inner).size() == 2, "a claim's file");
  }
  check(files.claim(path).outcome == FileOutcome::done, "a claim that was given up");
  const auto listed = files.list(inner);
  check(listed.size() == 1 && listed[0].name == "copy.scv" && !listed[0].isFolder &&
            listed[0].size == kOld.size() + kNew.size() && listed[0].changed > before &&
            listed[0].changed == files.lastChange(path),
        "a folder's list");
  check(files.list(folder + "/one").at(0).isFolder && files.list(path).empty(), "folders in it");
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) return 2;
  const std::string folder = arguments[1];
  while (count > 2) {
    const std::string path = folder + "\\contest.scv";
    if (!save(path, std::string(9000, 'a')) || !save(path, std::string(300000, 'b'))) return 1;
  }
  checkOrdinarySaves(folder);
  checkAttributes(folder);
  checkHardLinks(folder);
  checkFilesInUse(folder);
  checkLongPath(folder);
  checkNames(folder);
  checkFolders(folder);
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    check(entry.path().extension() != ".tmp", "nothing is left beside the files");
  }
  return failures == 0 ? 0 : 1;
}
