// Keeping the report on screen as a plain text file.
#pragma once

#include <string>
#include <string_view>

#include "storage/file.h"
#include "ui/window.h"

/// The text with each line feed written as CR LF; every other character, also a CR, stays.
[[nodiscard]] std::string withWindowsLineEnds(std::string_view text);

/// Writes reportText() to a text file that the operator chooses. Nothing is said, and the file
/// chosen stays as it was, when that fails.
void saveReport(Window& owner, FileSystem& files);
