// All that is printed for the awards in one go, and what of it a correction makes out of date.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/contest.h"
#include "session/report_request.h"

namespace scorvane {

/// The printedLists(), each with the bytes of its own report, a page break between each two.
[[nodiscard]] std::string awardsPacket(const Contest& contest);

struct CategoryFile {
  std::string name;       ///< without an ending: "Category 2 - Beef - Teams"
  ReportRequest request;  ///< of the custom report
};
/// A file for each category report of the packet. Nothing when printedLists() returns nothing.
[[nodiscard]] std::optional<std::vector<CategoryFile>> categoryFiles(const Contest& contest);

/// For each printed list, a line each, which of its places read otherwise now than they did before:
/// what must be printed again.
[[nodiscard]] std::string changedLists(const Contest& now, const Contest& before);

}  // namespace scorvane
