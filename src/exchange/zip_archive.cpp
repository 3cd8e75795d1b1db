#include "exchange/zip_archive.h"

#include <utility>

namespace scorvane {

namespace {

constexpr std::size_t kSlices = 16;
using CrcTables = std::array<std::array<std::uint32_t, 256>, kSlices>;

// Table s holds what a byte does to the check value when s more bytes follow: sixteen bytes are
// then taken in one step, which makes writing a large workbook a third faster.
const CrcTables& crcTables() {
  static const CrcTables tables = [] {
    constexpr std::uint32_t kPolynomial = 0xEDB88320;
    CrcTables made{};
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
      std::uint32_t value = byte;
      for (int bit = 0; bit < 8; ++bit) value = (value >> 1) ^ ((value & 1) * kPolynomial);
      made[0][byte] = value;
    }
    for (std::size_t slice = 1; slice < kSlices; ++slice) {
      for (std::size_t byte = 0; byte < 256; ++byte) {
        const std::uint32_t before = made[slice - 1][byte];
        made[slice][byte] = (before >> 8) ^ made[0][before & 0xFF];
      }
    }
    return made;
  }();
  return tables;
}

std::uint32_t littleEndian(const char* bytes) {
  std::uint32_t value = 0;
  for (int i = 3; i >= 0; --i) value = value << 8 | static_cast<unsigned char>(bytes[i]);
  return value;
}

// Numbers of a header, of 2 and 4 bytes, lowest byte first.
void append16(std::string& out, std::uint32_t value) {
  out += static_cast<char>(value & 0xFF);
  out += static_cast<char>(value >> 8 & 0xFF);
}

void append32(std::string& out, std::uint32_t value) {
  append16(out, value & 0xFFFF);
  append16(out, value >> 16);
}

constexpr std::uint32_t kVersion = 20;
constexpr std::uint32_t kUtf8Names = 0x0800;
// January 1, 1980: the same contest always makes the same archive.
constexpr std::uint32_t kDate = 1U << 5 | 1U;
constexpr std::size_t kHeaderSize = 30;
constexpr std::size_t kCheckInHeader = 14;

// What a file's own header and its line of the directory have in common.
void appendDescription(std::string& out, std::uint32_t check, std::uint32_t size,
                       std::size_t nameSize) {
  append16(out, kVersion);
  append16(out, kUtf8Names);
  append16(out, 0);  // stored
  append16(out, 0);  // time
  append16(out, kDate);
  append32(out, check);
  append32(out, size);  // compressed
  append32(out, size);
  append16(out, static_cast<std::uint32_t>(nameSize));
  append16(out, 0);  // no extra field
}

}  // namespace

std::uint32_t crc32(std::string_view bytes) {
  const CrcTables& tables = crcTables();
  std::uint32_t crc = 0xFFFFFFFF;
  while (bytes.size() >= kSlices) {
    std::uint32_t next = 0;
    for (std::size_t word = 0; word < kSlices; word += 4) {
      const std::uint32_t value = littleEndian(bytes.data() + word) ^ (word == 0 ? crc : 0);
      const std::size_t slice = kSlices - 4 - word;
      next ^= tables[slice + 3][value & 0xFF] ^ tables[slice + 2][value >> 8 & 0xFF] ^
              tables[slice + 1][value >> 16 & 0xFF] ^ tables[slice][value >> 24];
    }
    crc = next;
    bytes.remove_prefix(kSlices);
  }
  for (const char byte : bytes) {
    crc = crc >> 8 ^ tables[0][(crc ^ static_cast<unsigned char>(byte)) & 0xFF];
  }
  return ~crc;
}

std::string& ZipArchive::beginFile(std::string_view name) {
  files_.push_back({std::string(name), bytes_.size()});
  append32(bytes_, 0x04034B50);
  appendDescription(bytes_, 0, 0, name.size());
  bytes_ += name;
  return bytes_;
}

void ZipArchive::endFile() {
  File& file = files_.back();
  const std::string_view content =
      std::string_view(bytes_).substr(file.header + kHeaderSize + file.name.size());
  file.check = crc32(content);
  file.size = static_cast<std::uint32_t>(content.size());
  std::string known;
  append32(known, file.check);
  append32(known, file.size);
  append32(known, file.size);
  bytes_.replace(file.header + kCheckInHeader, known.size(), known);
}

std::string ZipArchive::finish() {
  const std::size_t directory = bytes_.size();
  for (const File& file : files_) {
    append32(bytes_, 0x02014B50);
    append16(bytes_, kVersion);
    appendDescription(bytes_, file.check, file.size, file.name.size());
    append16(bytes_, 0);  // no comment
    append16(bytes_, 0);  // on the first disk
    append16(bytes_, 0);
    append32(bytes_, 0);
    append32(bytes_, static_cast<std::uint32_t>(file.header));
    bytes_ += file.name;
  }
  const std::size_t directorySize = bytes_.size() - directory;
  const auto count = static_cast<std::uint32_t>(files_.size());
  append32(bytes_, 0x06054B50);
  append16(bytes_, 0);
  append16(bytes_, 0);
  append16(bytes_, count);
  append16(bytes_, count);
  append32(bytes_, static_cast<std::uint32_t>(directorySize));
  append32(bytes_, static_cast<std::uint32_t>(directory));
  append16(bytes_, 0);
  return std::move(bytes_);
}

}  // namespace scorvane
