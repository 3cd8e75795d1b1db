// The program's 8-bit text, read as code page 1252, for pages and spreadsheets: these are UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace scorvane {

/// Appends text as UTF-8 that files of markup and tables can hold: a control character becomes a
/// blank, and a byte that the code page does not define the replacement character U+FFFD.
void appendUtf8(std::string& out, std::string_view text);

/// The same with the characters that mean something in XML and HTML written as references, also
/// inside quoted attributes.
void appendMarkup(std::string& out, std::string_view text);

}  // namespace scorvane
