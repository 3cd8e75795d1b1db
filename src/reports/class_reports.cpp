#include "reports/class_reports.h"

#include "model/placing.h"
#include "reports/report_parts.h"
#include "text/format.h"

namespace scorvane {

std::string classesReport(const Contest& contest) {
  const JudgingClasses& classes = contest.classes;
  std::string out = "     Classes Report\n\n\n";
  appendFormat(out, "     %5.5s\n", "Class");
  appendFormat(out, "     %5.5s %-50.50s %-15.15s\n", " No. ", "     Description", "   Category");
  appendFormat(out, "     %5.5s %-50.50s %15.15s\n", "-----", kFiftyHyphens, "---------------");
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    appendFormat(out, "     %3d   %-38.38s %s   %-15s\n", k + 1, classes.name(k).c_str(),
                 kindTag(classes, k), categoryName(contest, classes.category(k)).c_str());
  }
  return out;
}

std::string officialPlacingsReport(const Contest& contest) {
  const JudgingClasses& classes = contest.classes;
  std::string out = "     Official Placings Report\n\n\n";
  // The second field is right-aligned here only; it is blank, so nothing shows of it.
  appendFormat(out, "     %5.5s %50.50s %-8.8s %6.6s\n", "Class", " ", "Official", " ");
  appendFormat(out, "     %5.5s %-50.50s %-8.8s %6.6s\n", " No. ", "     Description", "Placing",
               " Cuts ");
  appendFormat(out, "     %5.5s %-50.50s %8.8s %6.6s\n", "-----", kFiftyHyphens, "--------",
               "------");
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    const char official = classes.official(k);
    const auto order = orderOfLetter(official);
    const auto [cut1, cut2, cut3] = classes.cuts(k);
    // The cuts carry no widths: one of 10 or more makes the row longer.
    appendFormat(out, "     %3d   %-38.38s %s  %d%d%d%d-%c    %d%d%d\n", k + 1,
                 classes.name(k).c_str(), kindTag(classes, k), order[0], order[1], order[2],
                 order[3], official, cut1, cut2, cut3);
  }
  return out;
}

}  // namespace scorvane
