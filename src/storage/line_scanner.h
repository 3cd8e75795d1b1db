// Lines and fields of a contest file, as views into its bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace scorvane {

/// Takes bytes apart into lines. Only CR LF ends a line: a CR without LF is dropped, an LF
/// without CR is a character like any other. What follows the last CR LF is not a line, since a
/// file cut off there may have lost the end of a number. A line ends early at its first NUL. One of
/// more than kMaxLine bytes is no line, and nothing follows it.
class LineScanner {
 public:
  static constexpr std::size_t kMaxLine = 500;

  /// The bytes must outlive the scanner.
  explicit LineScanner(std::string_view bytes) : bytes_(bytes), rest_(bytes) {}

  /// The next line without its end; nothing after the last one, and where none can be read. The
  /// view is valid until the next call.
  [[nodiscard]] std::optional<std::string_view> next();
  /// The next line as a record of a section: nothing when it is empty.
  [[nodiscard]] std::optional<std::string_view> nextRecord() {
    const auto line = next();
    return line && !line->empty() ? line : std::nullopt;
  }

  /// The bytes from the next line on.
  [[nodiscard]] std::string_view rest() const { return rest_; }
  /// Skips bytes that the caller has read from rest().
  void skip(std::size_t count) {
    lineStart_ = bytes_.size() - rest_.size();
    rest_.remove_prefix(count);
  }

  /// The number of bytes of the whole input.
  [[nodiscard]] std::size_t size() const { return bytes_.size(); }
  /// Which line, counted from 1, was taken last or could not be. Counts them all.
  [[nodiscard]] std::int64_t lineNumber() const;

 private:
  [[nodiscard]] std::optional<std::string_view> nextWithoutReturns();

  std::string_view bytes_;
  std::string_view rest_;
  std::size_t lineStart_ = 0;  ///< of the line taken last
  std::string joined_;         ///< the last line that had CRs to drop
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
  /// The next field; a missing one reads as an empty one.
  [[nodiscard]] std::string_view nextOrEmpty() { return next().value_or(std::string_view{}); }

 private:
  std::string_view rest_;
  bool atEnd_ = false;
};

}  // namespace scorvane
