#include "view/report_text.h"

namespace {

// Thirty classes and a hundred thousand contestants stay far below this.
constexpr std::size_t kLongestReport = 128U << 20U;

}  // namespace

std::string& reportText() {
  static std::string text = kWelcomeText;
  return text;
}

bool endIfTooLong(std::string& report) {
  if (report.size() <= kLongestReport) return false;
  report += "\nThis report is too long; it ends here.\n";
  return true;
}
