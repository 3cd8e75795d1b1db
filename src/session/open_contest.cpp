#include "session/open_contest.h"

#include "text/report_marks.h"

namespace scorvane {

Contest& currentContest() {
  static Contest contest;
  return contest;
}

std::string& currentFileName() {
  static std::string name;
  return name;
}

std::string& reportText() {
  static std::string text = kWelcomeText;
  return text;
}

}  // namespace scorvane
