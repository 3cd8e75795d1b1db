#include "text/report_marks.h"

namespace scorvane {

namespace {

// Thirty classes and a hundred thousand contestants stay below this.
constexpr std::size_t kLongestReport = 96U << 20U;

}  // namespace

bool closeIfTooLong(std::string& report) {
  // A long report moves once, not each time it has doubled: the memory left behind would add up.
  constexpr std::size_t kLong = 16U << 20U;
  constexpr std::size_t kRoomForLast = 1U << 20U;
  if (report.size() > kLong) report.reserve(kLongestReport + kRoomForLast);
  if (report.size() <= kLongestReport) return false;
  report += "\nThis report is too long; it ends here.\n";
  return true;
}

}  // namespace scorvane
