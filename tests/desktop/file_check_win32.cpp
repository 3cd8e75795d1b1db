// file_check FOLDER: saves into an empty folder under the circumstances that only Windows has, and
// says what went wrong. file_check FOLDER save: saves two contents in turn until it is killed.
// file_check FOLDER CONTEST: opens and saves that contest under names beyond the code page.
#include <windows.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>

#include "storage/file.h"
#include "storage/safe_save.h"
#include "tests/session/odd_names.h"
#include "text/unicode_win32.h"

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

// Made and read without the code under test.
std::wstring rawWide(const std::string& path) {
  std::array<wchar_t, 1000> wide{};
  MultiByteToWideChar(CP_UTF8, 0, path.c_str(), -1, wide.data(), 1000);
  return wide.data();
}

void rawMake(const std::string& path, const std::string& bytes) {
  const HANDLE file = CreateFileW(rawWide(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  DWORD written = 0;
  check(WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != 0,
        "a file made for the check");
  CloseHandle(file);
}

std::string rawContent(const std::string& path) {
  const HANDLE file = CreateFileW(rawWide(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                  OPEN_EXISTING, 0, nullptr);
  std::string bytes(100000, '\0');
  DWORD count = 0;
  ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
  CloseHandle(file);
  return bytes.substr(0, count);
}

// As the system itself bends it to the code page, and with one letter for all that is lost.
std::vector<std::string> bent(const std::string& name) {
  const std::wstring wide = rawWide(name);
  std::vector<std::string> names;
  for (const char* letter : {static_cast<const char*>(nullptr), "O"}) {
    const DWORD flags = letter == nullptr ? 0 : WC_NO_BEST_FIT_CHARS;
    std::array<char, 1000> narrow{};
    WideCharToMultiByte(CP_ACP, flags, wide.c_str(), -1, narrow.data(), 1000, letter, nullptr);
    std::wstring again(1000, L'\0');
    MultiByteToWideChar(CP_ACP, 0, narrow.data(), -1, again.data(), 1000);
    again.resize(again.find(L'\0'));
    if (again.find_first_of(L"?*<>|:\"/\\") == std::wstring::npos)
      names.push_back(utf8OfWide(again));
  }
  return names;
}

void checkOddNames(const std::string& folder, const std::string& contest) {
  const std::string contests = folder + "\\names";
  CreateDirectoryA(contests.c_str(), nullptr);
  SetEnvironmentVariableA("LOCALAPPDATA", folder.c_str());
  for (const std::string& fault :
       OddNames(contests, {rawMake, rawContent, bent}, contest, 10).faults()) {
    std::printf("FAILED: %s\n", fault.c_str());
    ++failures;
  }
}

// What is no UTF-8, or ends early, is no name at all.
void checkNoNames(const std::string& folder) {
  for (const std::string& name : {std::string("n\xE9"), std::string("n.scv\0.scv", 10)}) {
    const std::string path = folder + "\\" + name;
    check(!save(path, kOld) && !systemFiles().readWhole(path), "a name that is none");
  }
  check(systemFiles().list("\xE9").empty(), "a folder whose name is none");
  check(shownPath("Ω é.scv") == "? \xE9.scv", "a name is shown in the code page");
}

// A surrogate alone: the very file, or none.
void checkUnpairedSurrogates(const std::string& folder) {
  const std::string inner = folder + "\\surrogates";
  CreateDirectoryA(inner.c_str(), nullptr);
  const std::string paths[] = {inner + "\\\xED\xA0\x80.scv", inner + "\\\xED\xB0\x80.scv"};
  std::size_t saved = 0;
  for (const std::string& path : paths) saved += save(path, path) ? 1 : 0;
  for (const std::string& path : paths) {
    check(saved < 2 || contentOf(path) == path, "a name with a surrogate alone");
  }
  check(systemFiles().list(inner).size() == saved, "two surrogates are two names");
}

// Capitals, the short name, the drive Q: that the folder has for this check.
void checkOneFile(const std::string& folder) {
  FileSystem& files = systemFiles();
  const std::string path = oldFile(folder + "\\A Long Contest Name.scv");
  const std::string other = oldFile(folder + "\\Another Contest.scv");
  const auto name = files.resolve(path);
  std::array<char, MAX_PATH> brief{};
  GetShortPathNameA(path.c_str(), brief.data(), MAX_PATH);
  check(brief.data() != path, "a short name");
  for (const std::string& twin : {folder + "\\a LONG contest NAME.SCV", std::string(brief.data()),
                                  folder + "\\.\\surrogates\\..\\A Long Contest Name.scv",
                                  "\\\\?\\" + path, std::string("q:\\A Long Contest Name.scv")}) {
    check(files.resolve(twin) == name, twin.c_str());
    check(contestKey(files, twin) == contestKey(files, path), "one contest");
    check(reachesSameFile(files, twin, path), "one file");
    check(!reachesSameFile(files, twin, other), "two files");
  }
  check(files.resolve(folder + "\\SURROGATES\\New.scv") ==
            files.resolve(folder + "\\surrogates\\New.scv"),
        "a file that is yet to be made");
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
  if (count > 2 && std::string(arguments[2]) != "save") {
    checkOddNames(folder, contentOf(arguments[2]));
    return failures == 0 ? 0 : 1;
  }
  while (count > 2) {
    const std::string path = folder + "\\contest.scv";
    if (!save(path, std::string(9000, 'a')) || !save(path, std::string(300000, 'b'))) return 1;
  }
  checkOrdinarySaves(folder);
  checkAttributes(folder);
  checkHardLinks(folder);
  checkFilesInUse(folder);
  checkLongPath(folder);
  checkNoNames(folder);
  checkUnpairedSurrogates(folder);
  checkOneFile(folder);
  checkFolders(folder);
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    check(entry.path().extension() != ".tmp", "nothing is left beside the files");
  }
  return failures == 0 ? 0 : 1;
}
