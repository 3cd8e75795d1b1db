#include "session/open_contest.h"

#include <algorithm>
#include <cstddef>

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

std::string contestFolder() {
  const std::string& path = currentFileName();
  const std::size_t end = path.find_last_of("/\\");
  return end == std::string::npos ? "" : path.substr(0, std::max<std::size_t>(end, 1));
}

std::string& reportText() {
  static std::string text = kWelcomeText;
  return text;
}

}  // namespace scorvane
