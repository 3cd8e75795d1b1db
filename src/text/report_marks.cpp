#include "text/report_marks.h"

namespace scorvane {

bool closeIfTooLong(std::string& report, std::size_t longest) {
  if (report.size() <= longest) return false;
  report += "\nThis report is too long; it ends here.\n";
  return true;
}

}  // namespace scorvane
