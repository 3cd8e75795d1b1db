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
#include "text/report_marks.h"

namespace scorvane {

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
  [[nodiscard]] std::string rest() const { return std::string(bytes_); }

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
    if (wishes.byte() % 4 != 3) request.classes.push_back(k);
  }
  request.numToReport = wishes.number(100);
  request.percent = wishes.byte() % 2 == 1;
  // As the dialog returns it: at most 499 bytes, without control characters.
  request.title = wishes.rest().substr(0, 499);
  for (char& c : request.title) {
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  }
  return request;
}

std::int64_t countLines(std::string_view text) {
  return std::count(text.begin(), text.end(), '\n');
}

bool isMarker(std::string line) {
  std::replace(line.begin(), line.end(), '\t', ' ');
  return line == kPageBreakLine || line == kSmallFontLine || line == kLargeFontLine;
}

/// Lines of the report that are drawn once; the first four are in every header.
std::int64_t countBodyLines(std::string_view report) {
  std::int64_t count = 0;
  for (std::int64_t line = 0; !report.empty(); ++line) {
    const std::size_t end = report.find('\n');
    if (line >= 4 && !isMarker(std::string(report.substr(0, end)))) ++count;
    report.remove_prefix(end + 1);
  }
  return count;
}

void requireWholePrint(const Contest& contest, const std::string& report, std::int32_t lines) {
  const PrintHeader identity = {contest.settings.contestName, contest.settings.contestDate,
                                contest.settings.divisionName, "Sat Mar  7 09:05:02 2026\n"};
  const std::vector<PrintOperation> operations = layOutPrint(report, identity, lines);
  require(pageCount(operations) <= countLines(report) + 1, "a page for every line at most");
  require(
      !operations.empty() && std::holds_alternative<print_operation::EndPage>(operations.back()),
      "a print ends with a whole page");
  std::int64_t texts = 0;
  std::int64_t rowsOutside = 0;
  for (const PrintOperation& operation : operations) {
    const auto* text = std::get_if<print_operation::Text>(&operation);
    if (text == nullptr) continue;
    ++texts;
    if (text->row < 1 || text->row > lines) ++rowsOutside;
  }
  // A file can bring line feeds in the names, which make the header longer.
  const std::int64_t header = 3 + countLines(identity.contestName) +
                              countLines(identity.contestDate) + countLines(identity.divisionName) +
                              std::min<std::int64_t>(countLines(report), 4);
  constexpr std::int64_t kFooter = 4;
  require(texts == pageCount(operations) * (header + kFooter) + countBodyLines(report),
          "every line is printed once, besides headers and footers");
  constexpr std::int32_t kRoomForAll = 12;
  require(lines < kRoomForAll || header > 7 || rowsOutside == 0,
          "nothing is drawn outside the page");
  require(!printProgressText(report, 1, pageCount(operations)).empty(), "progress is shown");
}

void makeReport(const Command& command, const Contest& contest, const ReportRequest& request,
                std::int32_t linesPerPage) {
  const std::optional<std::string> report = command.report()->build(contest, request);
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
    if (command.report() == nullptr) continue;
    const bool isCustom = command.report()->ask == askCustom;
    for (int form = 0; form < (isCustom ? 8 : 1); ++form) {
      request.kind = kScoreKinds[static_cast<std::size_t>(form / 2)];
      request.team = form % 2 == 1;
      makeReport(command, *contest, request, linesPerPage);
    }
  }
  return 0;
}

}  // namespace scorvane
