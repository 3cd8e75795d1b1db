#include "session/open_contest.h"

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
  if (end == std::string::npos) return "";
  // Of a root the separator belongs to the name: "E:" alone is wherever one was last on E.
  const bool isRoot = end == 0 || path[end - 1] == ':';
  return path.substr(0, end + (isRoot ? 1 : 0));
}

std::string& reportText() {
  static std::string text = kWelcomeText;
  return text;
}

}  // namespace scorvane
