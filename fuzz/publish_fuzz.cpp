// Any bytes as a contest file, and all that is published of it: whatever the texts of a damaged or
// malicious contest are, pages and workbooks are well-formed and hold them as texts.
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <variant>

#include "exchange/exports.h"
#include "fuzz/checks.h"
#include "storage/contest_reader.h"
#include "tests/exchange/markup_check.h"

namespace scorvane {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto reading = readContest({reinterpret_cast<const char*>(data), size});
  const Contest* contest = std::get_if<Contest>(&reading);
  if (contest == nullptr) return 0;
  for (const PageContent content : {PageContent::awards, PageContent::teams, PageContent::cards}) {
    require(markupFault(resultsPage(*contest, content), false).empty(), "pages are well-formed");
  }
  const std::string fault = workbookFault(spreadsheetBytes(*contest, "s.xlsx"),
                                          [](const std::string&, std::string_view) {});
  require(fault.empty(), "workbooks are well-formed: " + fault);
  const std::string table = spreadsheetBytes(*contest, "s.csv");
  for (std::size_t end = 0; (end = table.find('\n', end)) != std::string::npos; ++end) {
    require(table[end - 1] == '\r', "lines end in CR LF");
    const bool isSafe = end + 1 == table.size() ||
                        std::string_view("=+@\t\r").find(table[end + 1]) == std::string_view::npos;
    require(isSafe, "no row begins with a formula");
  }
  return 0;
}

}  // namespace scorvane
