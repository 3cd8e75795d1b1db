// All that is printed for the awards in one go, and what of it a correction makes out of date.
#pragma once

#include <string>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// The printedLists(), each with the bytes of its own report, a page break between each two.
[[nodiscard]] std::string awardsPacket(const Contest& contest);

struct NamedReport {
  std::string name;  ///< made for a file's name: "Category 2 - Beef - Teams"
  std::string text;
};
/// The category reports of the packet.
[[nodiscard]] std::vector<NamedReport> categoryReports(const Contest& contest);

/// For each printed list, a line each, which of its places read otherwise now than they did before:
/// what must be printed again.
[[nodiscard]] std::string changedLists(const Contest& now, const Contest& before);

}  // namespace scorvane
