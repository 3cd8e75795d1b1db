// A simple and strict look at pages and at the parts of workbooks.
#pragma once

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace scorvane {

/// Why a text is no UTF-8 without control characters, or its tags and references are none that the
/// writers make; "" when all is well. With `isXml` every tag must be closed by its own end tag.
inline std::string markupFault(std::string_view markup, bool isXml) {
  static const std::set<std::string, std::less<>> references = {"amp", "lt", "gt", "quot", "#39"};
  static const std::set<std::string, std::less<>> tags = {
      "!DOCTYPE", "a",     "article", "body",    "br",     "caption", "details", "div",
      "h1",       "h2",    "h3",      "head",    "header", "html",    "input",   "label",
      "li",       "main",  "meta",    "nav",     "output", "p",       "path",    "script",
      "section",  "small", "style",   "summary", "svg",    "table",   "tbody",   "td",
      "text",     "th",    "thead",   "title",   "tr",     "ul"};
  std::vector<std::string> open;
  for (std::size_t i = 0; i < markup.size(); ++i) {
    const auto byte = static_cast<unsigned char>(markup[i]);
    const std::string where = " at " + std::to_string(i);
    if ((byte < ' ' && byte != '\n') || byte == 0x7F) return "control character" + where;
    if (byte >= 0x80) {
      const std::size_t more = byte >= 0xF0 ? 9 : byte >= 0xE0 ? 2 : byte >= 0xC2 ? 1 : 9;
      const std::string_view rest = markup.substr(i + 1, more);
      for (const char c : rest) {
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) return "no UTF-8" + where;
      }
      if (rest.size() != more) return "no UTF-8" + where;
      i += more;
    } else if (byte == '&') {
      const std::size_t end = std::min(markup.find(';', i), markup.size());
      if (!references.contains(markup.substr(i + 1, end - i - 1))) return "bare &" + where;
    } else if (byte == '<') {
      const std::size_t end = markup.find('>', i);
      if (end == std::string_view::npos) return "no end of tag" + where;
      std::string_view tag = markup.substr(i + 1, end - i - 1);
      if (tag.find('<') != std::string_view::npos) return "bare <" + where;
      const bool isEnd = tag.starts_with('/');
      if (isEnd) tag.remove_prefix(1);
      const std::string name(tag.substr(0, tag.find_first_of(" /")));
      if (!isXml && !tags.contains(name)) return "tag " + name + where;
      if (isXml && isEnd) {
        if (open.empty() || open.back() != name) return "end of " + name + where;
        open.pop_back();
      } else if (isXml && !tag.ends_with('/') && !tag.starts_with('?')) {
        open.push_back(name);
      }
      i = end;
      // Their content is the program's own, without any text of the contest.
      if (!isXml && !isEnd && (name == "script" || name == "style")) {
        i = std::min(markup.find("</" + name, i), markup.size()) - 1;
      }
    }
  }
  return open.empty() ? "" : "no end of " + open.back();
}

/// Why an archive is no sound workbook; "" when all is well. Hands each part's name and content to
/// `look`.
template <typename Look>
std::string workbookFault(std::string_view bytes, const Look& look) {
  const auto number = [&](std::size_t at, std::size_t size) {
    std::size_t value = 0;
    while (size-- > 0) value = value << 8U | static_cast<unsigned char>(bytes.at(at + size));
    return value;
  };
  constexpr std::size_t kEnd = 22, kLine = 46, kHeader = 30;
  if (bytes.size() < kEnd) return "too short";
  const std::size_t end = bytes.size() - kEnd;
  std::size_t line = number(end + 16, 4), next = 0;
  if (number(end, 4) != 0x06054B50 || line + number(end + 12, 4) != end) return "no directory";
  for (std::size_t file = 0; file < number(end + 10, 2); ++file) {
    const std::size_t header = number(line + 42, 4), size = number(line + 24, 4);
    const std::size_t nameSize = number(line + 28, 2);
    if (header != next || number(header, 4) != 0x04034B50) return "no file where the line says";
    const std::string name(bytes.substr(line + kLine, nameSize));
    if (bytes.substr(header + 4, 26) != bytes.substr(line + 6, 26)) return "not alike: " + name;
    if (bytes.substr(header + kHeader, nameSize) != name) return "another name than " + name;
    const std::string_view content = bytes.substr(header + kHeader + nameSize, size);
    std::uint32_t check = 0xFFFFFFFF;
    for (const char byte : content) {
      check ^= static_cast<unsigned char>(byte);
      for (int bit = 0; bit < 8; ++bit) check = (check >> 1) ^ ((check & 1) * 0xEDB88320U);
    }
    if (number(line + 16, 4) != static_cast<std::uint32_t>(~check)) return "check of " + name;
    if (const std::string fault = markupFault(content, true); !fault.empty()) return name + fault;
    look(name, content);
    next = header + kHeader + nameSize + size;
    line += kLine + nameSize;
  }
  return line == end && next == number(end + 16, 4) ? "" : "something between the files";
}

}  // namespace scorvane
