#include "app/file_menu.h"

#include <utility>

#include "model/contest.h"
#include "model/numbering.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "text/format.h"
#include "text/unicode.h"

namespace scorvane {

namespace {

std::string& programTitle() {
  static std::string title = "Scorvane";
  return title;
}

std::string cutTitle(std::string title) {
  if (title.size() > kMaxTitle) title.resize(kMaxTitle);
  return title;
}

}  // namespace

void setProgramTitle(std::string title) {
  programTitle() = cutTitle(std::move(title));
}

void showContestTitle(MainWindow& window) {
  window.setTitle(cutTitle(formatText("%s - %s - %s", programTitle().c_str(),
                                      shownPath(currentFileName()).c_str(),
                                      currentContest().settings.contestName.c_str())));
}

void prepareContest() {
  startNewContest();
  currentContest().groupLetters = makeGroupLetters(currentContest().settings.numGroups);
}

std::string contestPath(std::string_view commandLine) {
  constexpr std::string_view kBlanks = " \t";
  const std::size_t begin = commandLine.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  commandLine.remove_prefix(begin);
  if (commandLine.front() == '"') {
    commandLine.remove_prefix(1);
    commandLine = commandLine.substr(0, commandLine.find('"'));
  } else {
    commandLine = commandLine.substr(0, commandLine.find_last_not_of(kBlanks) + 1);
  }
  return std::string(commandLine);
}

void openContestOfCommandLine(MainWindow& window, std::string_view commandLine) {
  const std::string path = contestPath(commandLine);
  if (!path.empty()) openContestFile(window, path);
}

void openContestFile(MainWindow& window, const std::string& path) {
  if (openContest(window, path)) {
    showContestTitle(window);
  } else {
    window.setTitle(programTitle());
  }
  window.refreshReportView();
}

void newContestCommand(MainWindow& window) {
  startNewContest();
  window.setTitle(programTitle());
  window.refreshReportView();
}

void openContestCommand(MainWindow& window) {
  // When nothing was opened, the title names the new contest that was left, and an empty path.
  openChosenContest(window);
  showContestTitle(window);
  window.refreshReportView();
}

void saveContestCommand(MainWindow& window) {
  saveCurrent(window);
  showContestTitle(window);
  window.refreshReportView();
}

void saveContestAsCommand(MainWindow& window) {
  saveContestAs(window);
  showContestTitle(window);
  window.refreshReportView();
}

}  // namespace scorvane
