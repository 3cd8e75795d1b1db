#include "text/decoding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>

#include "text/unicode.h"

namespace scorvane {

namespace {

constexpr char32_t kNoCharacter = 0xFFFD;

unsigned byteAt(std::string_view bytes, std::size_t i) {
  return static_cast<unsigned char>(bytes[i]);
}

// How many characters from `i` on are ASCII.
std::size_t asciiRun(std::string_view bytes, std::size_t i) {
  constexpr std::uint64_t kOtherBits = 0x8080808080808080;
  std::size_t end = i;
  for (std::uint64_t eight = 0; end + sizeof eight <= bytes.size(); end += sizeof eight) {
    std::memcpy(&eight, bytes.data() + end, sizeof eight);
    if ((eight & kOtherBits) != 0) break;
  }
  while (end < bytes.size() && byteAt(bytes, end) < 0x80) ++end;
  return end - i;
}

bool isUtf8(std::string_view bytes) {
  for (std::size_t i = asciiRun(bytes, 0); i < bytes.size(); i += asciiRun(bytes, i)) {
    if (!takeCharacter(bytes, i)) return false;
  }
  return true;
}

// Half of a pair, as a field can hold it, is no reason to take the whole text for 8-bit text.
char32_t orReplacement(char32_t c) {
  return c >= kSurrogates && c < kAfterSurrogates ? kNoCharacter : c;
}

// Hands every character of the file to `take`, runs of ASCII as such.
template <typename Take>
void eachOfUtf16(std::string_view bytes, std::size_t high, Take take) {
  const auto unitAt = [&](std::size_t i) {
    return static_cast<char32_t>(byteAt(bytes, i + high) << 8U | byteAt(bytes, i + 1 - high));
  };
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    char32_t c = unitAt(i);
    if (const char32_t next = i + 3 < bytes.size() ? unitAt(i + 2) : 0; isPair(c, next)) {
      c = characterOfPair(c, next);
      i += 2;
    }
    take(orReplacement(c));
  }
}

template <typename Take>
void eachCharacter(std::string_view bytes, Take take) {
  if (bytes.starts_with("\xFF\xFE")) return eachOfUtf16(bytes.substr(2), 1, take);
  if (bytes.starts_with("\xFE\xFF")) return eachOfUtf16(bytes.substr(2), 0, take);
  const std::string_view unmarked = bytes.substr(bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0);
  const bool isEncoded = isUtf8(unmarked);
  for (std::size_t i = 0; i < unmarked.size();) {
    if (const std::size_t run = asciiRun(unmarked, i); run > 0) {
      take.ascii(unmarked.substr(i, run));
      i += run;
    } else if (isEncoded) {
      take(orReplacement(takeCharacter(unmarked, i).value_or(kNoCharacter)));
    } else {
      const unsigned c = byteAt(unmarked, i++);
      const char32_t own = c < 0xA0 ? kWindows1252Own.at(c - 0x80U) : c;
      take(own != 0 ? own : c);  // a byte without a character: the control character of Unicode
    }
  }
}

// Letters of Unicode from `first` on, each by its base letter.
struct BaseLetters {
  char32_t first;
  std::string_view letters;
};
constexpr std::array kBaseLetters = {
    BaseLetters{0x100,
                "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiIiJjKkkLlLlLlLlLlNnNnNnnNnOoOoOo"
                "OoRrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs"},
    BaseLetters{0x1CD, "AaIiOoUuUuUuUuUu"},
    BaseLetters{0x1E6, "GgKkOoOo"},
    BaseLetters{0x1F8, "NnAa"},
    BaseLetters{0x1FE, "OoAaAaEeEeIiIiOoOoRrRrUuUuSsTt"},
    BaseLetters{0x226, "AaEeOoOoOoOoYy"},
    BaseLetters{0x2010, "---"},
    BaseLetters{0x2015, "-"},
    BaseLetters{0x2212, "-"},
    BaseLetters{
        0x1E00,
        "AaBbBbBbCcDdDdDdDdDdEeEeEeEeEeFfGgHhHhHhHhHhIiIiKkKkKkLlLlLlLlMmMmMmNnNnNnNnOoOoOoO"
        "oPpPpRrRrRrRrSsSsSsSsSsTtTtTtTtUuUuUuUuUuVvVvWwWwWwWwWwXxXxYyZzZzZzhtwyasssSdAaAaAa"
        "AaAaAaAaAaAaAaAaAaEeEeEeEeEeEeEeEeIiIiOoOoOoOoOoOoOoOoOoOoOoOoUuUuUuUuUuUuUuYyYyYyYy"
        "LlVvYy"},
};
static_assert(kBaseLetters.front().letters.size() == 0x80);
static_assert(kBaseLetters.back().letters.size() == 0x100);

constexpr char32_t kFirstWide = 0xFF01;  // ASCII from "!" on, as wide as other signs
constexpr char32_t kLastWide = 0xFF5E;

std::optional<char> baseLetter(char32_t c) {
  if (c >= kFirstWide && c <= kLastWide) return byteOf(c - kFirstWide + '!');
  for (const auto& [first, letters] : kBaseLetters) {
    if (c >= first && c - first < letters.size()) return letters[c - first];
  }
  return std::nullopt;
}

bool isBetween(char32_t c, char32_t first, char32_t last) {
  return c >= first && c <= last;
}

bool isBlank(char32_t c) {
  return isBetween(c, 0x80, 0xA0) || isBetween(c, 0x2000, 0x200A) || c == 0x2028 || c == 0x2029 ||
         c == 0x202F || c == 0x205F || c == 0x3000;
}

bool isNeverSeen(char32_t c) {
  return isBetween(c, 0x200B, 0x200F) || isBetween(c, 0x202A, 0x202E) ||
         isBetween(c, 0x2060, 0x2064) || isBetween(c, 0xFE00, 0xFE0F) || c == 0xFEFF;
}

// Apostrophes and quotation marks besides those of code page 1252.
char straightQuote(char32_t c) {
  if (c == 0x2B9 || c == 0x2BB || c == 0x2BC || c == 0x201B || c == 0x2032) return '\'';
  return c == 0x2BA || c == 0x201F || c == 0x2033 ? '"' : '\0';
}

constexpr bool isAccent(char32_t c) {
  return c >= 0x300 && c < 0x370;
}

// Accents, and the letters that have a character with each.
struct Accent {
  char32_t accent;
  std::string_view letters;
  std::string_view accented;
};
constexpr std::array kAccents = {
    Accent{0x300, "AEIOUaeiou", "\xC0\xC8\xCC\xD2\xD9\xE0\xE8\xEC\xF2\xF9"},
    Accent{0x301, "AEIOUYaeiouy", "\xC1\xC9\xCD\xD3\xDA\xDD\xE1\xE9\xED\xF3\xFA\xFD"},
    Accent{0x302, "AEIOUaeiou", "\xC2\xCA\xCE\xD4\xDB\xE2\xEA\xEE\xF4\xFB"},
    Accent{0x303, "ANOano", "\xC3\xD1\xD5\xE3\xF1\xF5"},
    Accent{0x308, "AEIOUYaeiouy", "\xC4\xCB\xCF\xD6\xDC\x9F\xE4\xEB\xEF\xF6\xFC\xFF"},
    Accent{0x30A, "Aa", "\xC5\xE5"},
    Accent{0x30C, "SZsz", "\x8A\x8E\x9A\x9E"},
    Accent{0x327, "Cc", "\xC7\xE7"},
};

class Writer {
 public:
  explicit Writer(DecodedText& out) : out_(out) {}

  void ascii(std::string_view run) { out_.text += run; }

  void operator()(char32_t c) {
    if (c < 0x80 || isBetween(c, 0xA1, 0xFF)) {
      out_.text += byteOf(c);
    } else {
      appendOther(c);
    }
  }

 private:
  void appendOther(char32_t c) {
    if (isBlank(c)) {
      out_.text += ' ';
    } else if (const char quote = straightQuote(c)) {
      out_.text += quote;
    } else if (isAccent(c)) {
      appendAccent(c);
    } else if (const auto* own = std::find(kWindows1252Own.begin(), kWindows1252Own.end(), c);
               own != kWindows1252Own.end()) {
      out_.text += byteOf(0x80 + static_cast<char32_t>(own - kWindows1252Own.begin()));
    } else if (!isNeverSeen(c)) {
      out_.changed.push_back(out_.text.size());
      out_.text += baseLetter(c).value_or('?');
    }
  }

  // A letter that lacks the accent stays without it.
  void appendAccent(char32_t c) {
    if (out_.text.empty()) return;
    for (const auto& [accent, letters, accented] : kAccents) {
      const std::size_t i = accent == c ? letters.find(out_.text.back()) : std::string_view::npos;
      if (i == std::string_view::npos) continue;
      out_.text.back() = accented[i];
      return;
    }
    const std::size_t last = out_.text.size() - 1;
    if (out_.changed.empty() || out_.changed.back() != last) out_.changed.push_back(last);
  }

  DecodedText& out_;
};

struct Utf8Writer {
  std::string& out;

  void ascii(std::string_view run) const { out += run; }
  void operator()(char32_t c) const { appendCharacter(out, c); }
};

}  // namespace

DecodedText decodeText(std::string_view bytes) {
  DecodedText decoded;
  decoded.text.reserve(bytes.size());
  eachCharacter(bytes, Writer(decoded));
  return decoded;
}

std::string utf8OfFile(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size());
  eachCharacter(bytes, Utf8Writer{utf8});
  return utf8;
}

}  // namespace scorvane
