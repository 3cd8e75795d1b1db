#include "text/windows_1252.h"

#include <array>

namespace scorvane {

namespace {

constexpr char16_t kUndefined = 0xFFFD;

// The bytes 0x80 to 0x9F; all above them are the Unicode characters of the same number.
constexpr std::array<char16_t, 32> kMiddle = {
    0x20AC,     kUndefined, 0x201A, 0x0192, 0x201E, 0x2026,     0x2020, 0x2021,  // 0x80
    0x02C6,     0x2030,     0x0160, 0x2039, 0x0152, kUndefined, 0x017D, kUndefined,
    kUndefined, 0x2018,     0x2019, 0x201C, 0x201D, 0x2022,     0x2013, 0x2014,  // 0x90
    0x02DC,     0x2122,     0x0161, 0x203A, 0x0153, kUndefined, 0x017E, 0x0178};

char16_t characterOf(unsigned char byte) {
  constexpr unsigned char kDelete = 0x7F;
  if (byte < ' ' || byte == kDelete) return ' ';
  if (byte < 0x80 || byte >= 0xA0) return byte;
  return kMiddle[byte - 0x80U];
}

void appendCharacter(std::string& out, char16_t character) {
  if (character < 0x80) {
    out += static_cast<char>(character);
    return;
  }
  if (character < 0x800) {
    out += static_cast<char>(0xC0 | (character >> 6));
  } else {
    out += static_cast<char>(0xE0 | (character >> 12));
    out += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
  }
  out += static_cast<char>(0x80 | (character & 0x3F));
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
