#include "text/report_marks.h"

namespace scorvane {

bool closeIfTooLong(std::string& report, std::size_t longest) {
  // A long report moves once, not each time it has doubled: the memory left behind would add up.
  constexpr std::size_t kLong = 16U << 20U;
  constexpr std::size_t kRoomForLast = 1U << 20U;
  if (report.size() > kLong) report.reserve(longest + kRoomForLast);
  if (report.size() <= longest) return false;
  report += "\nThis report is too long; it ends here.\n";
  return true;
}

}  // namespace scorvane
