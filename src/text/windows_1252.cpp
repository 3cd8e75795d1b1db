#include "text/windows_1252.h"

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

}  // namespace

void appendUtf8(std::string& out, std::string_view text) {
  for (const char c : text) appendCharacter(out, characterOf(static_cast<unsigned char>(c)));
}

void appendMarkup(std::string& out, std::string_view text) {
  for (const char c : text) {
    if (const char* reference = referenceOf(c)) {
      out += reference;
    } else {
      appendCharacter(out, characterOf(static_cast<unsigned char>(c)));
    }
  }
}

}  // namespace scorvane
