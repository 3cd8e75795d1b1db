// Any bytes as a contest file, and every report of what they hold, laid out for odd pages. What
// follows the last line end is no part of the contest: it says what the reports are asked for.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "app/command_table.h"
#include "fuzz/checks.h"
#include "output/print_layout.h"
#include "storage/contest_format.h"
#include "storage/contest_reader.h"

namespace {

/// Small and large numbers out of the bytes behind the contest; zeros when they have run out.
class Wishes {
 public:
  explicit Wishes(std::string_view bytes) : bytes_(bytes) {}

  std::int32_t byte() {
    if (bytes_.empty()) return 0;
    const auto value = static_cast<unsigned char>(bytes_.front());
    bytes_.remove_prefix(1);
    return value;
  }
  /// Usually near `usual`, sometimes as large or as small as numbers get.
  std::int32_t number(std::int32_t usual) {
    const std::int32_t kind = byte();
    if (kind == 255) return std::numeric_limits<std::int32_t>::max();
    if (kind == 254) return std::numeric_limits<std::int32_t>::min();
    return usual > 0 ? kind % (usual + 1) : kind - 4;
  }

 private:
  std::string_view bytes_;
};

// Classes and rounds are asked for as the program can ask: from its lists of them.
ReportRequest wishedRequest(Wishes& wishes, const Contest& contest) {
  ReportRequest request;
  const std::int32_t classes = contest.classes.count();
  request.classIndex = wishes.number(classes);
  request.round = wishes.number(classes);
  const std::int32_t scored = wishes.byte() % 60;
  for (std::int32_t k = 0; k < std::min(scored, classes); ++k) {
    if (wishes.byte() % 4 != 3) request.custom.classes.push_back(k);
  }
  request.custom.title.assign(static_cast<std::size_t>(wishes.byte()) * 3, 'T');
  request.custom.numToReport = wishes.number(100);
  request.custom.percent = wishes.byte() % 2 == 1;
  return request;
}

std::int64_t countLines(std::string_view text) {
  return std::count(text.begin(), text.end(), '\n');
}

void requireWholePrint(const Contest& contest, const std::string& report, std::int32_t lines) {
  const PrintHeader header = {contest.settings.contestName, contest.settings.contestDate,
                              contest.settings.divisionName, "Sat Mar  7 09:05:02 2026\n"};
  const std::vector<PrintOperation> operations = layOutPrint(report, header, lines);
  require(pageCount(operations) <= countLines(report) + 1, "a page for every line at most");
  require(
      !operations.empty() && std::holds_alternative<print_operation::EndPage>(operations.back()),
      "a print ends with a whole page");
  require(!printProgressText(report, 1, pageCount(operations)).empty(), "progress is shown");
}

void makeReport(const Command& command, const Contest& contest, const ReportRequest& request,
                std::int32_t linesPerPage) {
  const std::optional<std::string> report = command.report(contest, request);
  if (!report) return;
  require(report->empty() || report->back() == '\n', "a report's last line ends");
  constexpr std::size_t kWorthPrinting = 100'000;
  if (report->size() <= kWorthPrinting) requireWholePrint(contest, *report, linesPerPage);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto reading = readContest(bytes);
  const Contest* contest = std::get_if<Contest>(&reading);
  if (contest == nullptr) return 0;
  Wishes wishes(bytes.substr(bytes.rfind(kLineEnd) + kLineEnd.size()));
  const std::int32_t linesPerPage = wishes.number(0);
  ReportRequest request = wishedRequest(wishes, *contest);
  for (const Command& command : commandTable()) {
    if (command.report == nullptr) continue;
    const bool isCustom = command.question == ReportQuestion::custom;
    for (int form = 0; form < (isCustom ? 8 : 1); ++form) {
      request.custom.kind = form / 2;
      request.custom.team = form % 2 == 1;
      makeReport(command, *contest, request, linesPerPage);
    }
  }
  return 0;
}
