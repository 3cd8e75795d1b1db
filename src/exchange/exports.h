// Files that go out to others: the published page and the spreadsheets.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "exchange/results_page.h"
#include "model/contest.h"
#include "storage/file.h"
#include "ui/window.h"

namespace scorvane {

/// Whether a path names a page by its extension: .html or .htm.
[[nodiscard]] bool isPagePath(std::string_view path);
/// Whether a path names a workbook (.xlsx) or a text table (.csv).
[[nodiscard]] bool isSpreadsheetPath(std::string_view path);

/// The content of a spreadsheet file of such a name: a workbook, or its first sheet as text.
[[nodiscard]] std::string spreadsheetBytes(const Contest& contest, std::string_view path);

/// Writes a file for others, safely; `contestPath`, which may be empty, is never written to. False
/// when nothing was written, and a file that was there is whole then.
[[nodiscard]] bool exportFile(FileSystem& files, const std::string& path,
                              const std::string& contestPath, std::string_view bytes);

/// Asks for a file, publishes the open contest there, and says where, or why that failed. False
/// when nothing was written.
bool publishResults(Window& owner, FileSystem& files, PageContent content);

/// Asks for a workbook or text file, exports the open contest's scores to it, and says where, or
/// why that failed.
void exportScores(Window& owner, FileSystem& files);

}  // namespace scorvane
