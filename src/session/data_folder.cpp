#include "session/data_folder.h"

#include <cstddef>

#include "storage/content_hash.h"
#include "text/unicode.h"

namespace scorvane {

namespace {

std::string dataFolder(FileSystem& files, const std::string& name) {
  return files.localDataFolder() + "/Scorvane/" + name;
}

// A path reaches the same file in capitals and in small letters, on Windows at least.
std::string inSmallLetters(std::string path) {
  for (char& c : path) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return path;
}

}  // namespace

std::string recoveryFolder(FileSystem& files) {
  return dataFolder(files, "Recovery");
}

std::string earlierSavesFolder(FileSystem& files) {
  return dataFolder(files, "Earlier Saves");
}

std::string copyPath(FileSystem& files, const std::string& key, int ordinal) {
  std::string path = recoveryFolder(files) + "/" + key;
  if (ordinal > 1) path.append(" (").append(std::to_string(ordinal)).append(")");
  return path.append(".scv");
}

bool isCopyOf(std::string_view name, const std::string& key) {
  if (!name.starts_with(key)) return false;
  name.remove_prefix(key.size());
  return name.starts_with(" (") || name == ".scv";
}

std::string fullPath(FileSystem& files, const std::string& contestPath) {
  return files.resolve(contestPath).value_or(contestPath);
}

bool reachesSameFile(FileSystem& files, const std::string& a, const std::string& b) {
  const auto statusOfA = files.status(a);
  const auto statusOfB = files.status(b);
  if (statusOfA && statusOfB && !statusOfA->identity.empty() &&
      statusOfA->identity == statusOfB->identity) {
    return true;
  }
  return inSmallLetters(fullPath(files, a)) == inSmallLetters(fullPath(files, b));
}

std::string contestKey(FileSystem& files, const std::string& contestPath) {
  if (contestPath.empty()) return "Untitled";
  constexpr std::size_t kMostOfName = 100;
  const std::string full = fullPath(files, contestPath);
  std::string name = full.substr(full.find_last_of("/\\") + 1);
  name = cutBetweenCharacters(name.substr(0, name.rfind('.')), kMostOfName);
  return name + "-" + hashText(contentHash(inSmallLetters(full)));
}

}  // namespace scorvane
