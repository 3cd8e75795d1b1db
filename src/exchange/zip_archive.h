// Archives of the ZIP format whose files are stored without compression.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace scorvane {

/// The check value of the ZIP format.
[[nodiscard]] std::uint32_t crc32(std::string_view bytes);

/// Files are written one after the other straight into the archive, so that a large one is in
/// memory once.
class ZipArchive {
 public:
  explicit ZipArchive(std::size_t expectedSize) { bytes_.reserve(expectedSize); }

  /// Begins a file; its content is to be appended to the string returned, until endFile().
  std::string& beginFile(std::string_view name);
  void endFile();
  /// The whole archive. No more files can be added then.
  [[nodiscard]] std::string finish();

 private:
  struct File {
    std::string name;
    std::size_t header = 0;  ///< where the file begins in the archive
    std::uint32_t check = 0;
    std::uint32_t size = 0;
  };

  std::string bytes_;
  std::vector<File> files_;
};

}  // namespace scorvane
