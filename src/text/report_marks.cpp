#include "text/report_marks.h"

namespace scorvane {

namespace {

// Thirty classes and a hundred thousand contestants stay far below this.
constexpr std::size_t kLongestReport = 128U << 20U;

}  // namespace

bool closeIfTooLong(std::string& report) {
  if (report.size() <= kLongestReport) return false;
  report += "\nThis report is too long; it ends here.\n";
  return true;
}

}  // namespace scorvane
