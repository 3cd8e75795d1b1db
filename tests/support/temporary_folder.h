// A folder of its own for a test that touches the disk; it goes with everything in it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace scorvane {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "scorvane-XXXXXX").string();
    path_ = ::mkdtemp(name.data());
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::string& path() const { return path_; }
  [[nodiscard]] std::string file(const std::string& name) const { return path_ + "/" + name; }
  /// How many files there are.
  [[nodiscard]] std::size_t count() const {
    const std::filesystem::directory_iterator files(path_);
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
  }

 private:
  std::string path_;
};

/// One that the program takes for this machine's folder for application data meanwhile.
class LocalDataFolder : public TemporaryFolder {
 public:
  LocalDataFolder() { ::setenv("XDG_DATA_HOME", path().c_str(), 1); }
  LocalDataFolder(const LocalDataFolder&) = delete;
  LocalDataFolder& operator=(const LocalDataFolder&) = delete;
  ~LocalDataFolder() { ::unsetenv("XDG_DATA_HOME"); }
};

inline std::string contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void makeFile(const std::string& path, const std::string& content) {
  std::ofstream(path, std::ios::binary) << content;
}

}  // namespace scorvane
