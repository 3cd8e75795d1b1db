// Lines and fields of a contest file, as views into the buffer it is read into.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/file.h"

namespace scorvane {

/// Takes bytes apart into lines. Only CR LF ends a line: a CR without LF is dropped, an LF
/// without CR is a character like any other. What follows the last CR LF is not a line, since a
/// file cut off there may have lost the end of a number. A line counts up to its first NUL, and
/// up to kMaxLine bytes.
class LineScanner {
 public:
  static constexpr std::size_t kMaxLine = 500;

  /// Lines of bytes that are all there already and outlive the scanner.
  explicit LineScanner(std::string_view bytes);
  /// Lines of a file that outlives the scanner. It is read piece by piece: a large contest then
  /// needs no memory for its file, and what was read is taken apart while it is in the cache.
  explicit LineScanner(InputFile& file);

  /// The next line without its end, nothing after the last one. The view holds until the next
  /// call.
  [[nodiscard]] std::optional<std::string_view> next();
  /// The next line as a record of a section: nothing after the last one, and an empty line is no
  /// record either.
  [[nodiscard]] std::optional<std::string_view> nextRecord() {
    const auto line = next();
    return line && !line->empty() ? line : std::nullopt;
  }

  /// What follows the last line, as far as it is at hand: any number of bytes, up to the end.
  [[nodiscard]] std::string_view atHand() const { return bytes_.substr(position_); }
  /// Passes over bytes at hand that the caller took itself.
  void skip(std::size_t count) { position_ += count; }

  /// The bytes of the whole input, as far as is known: never fewer than were read. No count in the
  /// file can promise more records than that.
  [[nodiscard]] std::size_t size() const { return size_; }
  /// Whether the file could not be read on. The lines ended early then.
  [[nodiscard]] bool failed() const { return failed_; }

 private:
  [[nodiscard]] std::optional<std::string_view> nextPiecewise();
  [[nodiscard]] std::optional<std::size_t> findReturn();
  [[nodiscard]] bool fill();
  void makeRoom();
  [[nodiscard]] std::string_view withinLimits(std::string_view line) const;

  InputFile* file_ = nullptr;
  std::vector<char> buffer_;  ///< what `bytes_` views when there is a file
  std::size_t read_ = 0;      ///< bytes of the file so far
  std::size_t size_ = 0;
  bool failed_ = false;

  std::string_view bytes_;    ///< those at hand, behind lines that were taken already
  std::size_t position_ = 0;  ///< of the next line
  bool hasNul_ = false;
  std::string pieces_;
};

/// Takes a line apart at every TAB, so that an empty field stays a field.
class FieldScanner {
 public:
  explicit FieldScanner(std::string_view line) : rest_(line) {}

  /// The next field; nothing after the last one.
  [[nodiscard]] std::optional<std::string_view> next() {
    if (atEnd_) return std::nullopt;
    std::size_t length = 0;
    while (length < rest_.size() && rest_[length] != '\t') ++length;
    const std::string_view field = rest_.substr(0, length);
    atEnd_ = length == rest_.size();
    rest_.remove_prefix(atEnd_ ? length : length + 1);
    return field;
  }
  /// The next field, a missing one as an empty one.
  [[nodiscard]] std::string_view nextOrEmpty() { return next().value_or(std::string_view{}); }

 private:
  std::string_view rest_;
  bool atEnd_ = false;
};

}  // namespace scorvane
