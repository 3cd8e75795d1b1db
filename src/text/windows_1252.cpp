#include "text/windows_1252.h"

#include <algorithm>
#include <array>

#include "text/unicode.h"

namespace scorvane {

namespace {

constexpr char16_t kUndefined = 0xFFFD;

char16_t characterOf(unsigned char byte) {
  constexpr unsigned char kDelete = 0x7F;
  if (byte < ' ' || byte == kDelete) return ' ';
  if (byte < 0x80 || byte >= 0xA0) return byte;
  const char16_t own = kWindows1252Own[byte - 0x80U];
  return own == 0 ? kUndefined : own;
}

const char* referenceOf(char character) {
  switch (character) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\'':
      return "&#39;";
    default:
      return nullptr;
  }
}

constexpr bool isPlain(char c) {
  return c >= ' ' && c < 0x7F;
}

constexpr auto kPlainInMarkup = [] {
  std::array<bool, 256> plain{};
  for (std::size_t i = 0; i < plain.size(); ++i) {
    const auto c = static_cast<char>(i);
    plain.at(i) = isPlain(c) && std::string_view("&<>\"'").find(c) == std::string_view::npos;
  }
  return plain;
}();

// Most texts are taken over as they are, in one piece.
template <typename Plain, typename Write>
void appendAll(std::string& out, std::string_view text, Plain plain, Write write) {
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end; ++at) {
    const char* other = std::find_if_not(at, end, plain);
    out.append(at, other);
    at = other;
    if (at == end) return;
    write(*at);
  }
}

}  // namespace

void appendUtf8(std::string& out, std::string_view text) {
  appendAll(out, text, isPlain,
            [&](char c) { appendCharacter(out, characterOf(static_cast<unsigned char>(c))); });
}

void appendMarkup(std::string& out, std::string_view text) {
  const auto plain = [](char c) { return kPlainInMarkup[static_cast<unsigned char>(c)]; };
  appendAll(out, text, plain, [&](char c) {
    if (const char* reference = referenceOf(c)) {
      out += reference;
    } else {
      appendCharacter(out, characterOf(static_cast<unsigned char>(c)));
    }
  });
}

}  // namespace scorvane
