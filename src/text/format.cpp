#include "text/format.h"

#include <array>
#include <cstdarg>
#include <cstdio>

namespace scorvane {

namespace {

SCORVANE_FORMAT(2, 0)
void appendFormatList(std::string& out, const char* format, std::va_list arguments) {
  // Nearly every line of this program fits; longer ones are measured first and written in place.
  std::array<char, 256> buffer;
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(buffer.data(), buffer.size(), format, arguments);
  if (length > 0) {
    const auto size = static_cast<std::size_t>(length);
    if (size < buffer.size()) {
      out.append(buffer.data(), size);
    } else {
      const std::size_t start = out.size();
      out.resize(start + size + 1);
      std::vsnprintf(out.data() + start, size + 1, format, again);
      out.resize(start + size);
    }
  }
  va_end(again);
}

}  // namespace

void appendFormat(std::string& out, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  appendFormatList(out, format, arguments);
  va_end(arguments);
}

std::string formatText(const char* format, ...) {
  std::string out;
  std::va_list arguments;
  va_start(arguments, format);
  appendFormatList(out, format, arguments);
  va_end(arguments);
  return out;
}

}  // namespace scorvane
