#include "output/save_report.h"

#include <variant>

#include "session/contest_file.h"
#include "session/open_contest.h"
#include "storage/contest_reader.h"
#include "storage/safe_save.h"
#include "text/characters.h"

namespace scorvane {

namespace {

// A contest that was chosen by mistake is worth an earlier save.
bool isContest(FileSystem& files, const std::string& path) {
  const auto bytes = files.readWhole(path);
  return bytes && std::holds_alternative<Contest>(readContest(*bytes));
}

}  // namespace

void saveReport(Window& owner, FileSystem& files) {
  FileQuestion question;
  question.purpose = FileQuestion::Purpose::save;
  question.filters = {{"Text", "*.txt"}, {"All", "*.*"}};
  question.defaultExtension = "txt";
  // Without meaning when saving, and asked for all the same.
  question.fileMustExist = true;
  question.folder = contestFolder();
  const std::optional<std::string> path = owner.chooseFile(question);
  if (!path) return;
  const std::string report = withWindowsLineEnds(reportText());
  // The report is still on screen when this fails, and silence is what is wanted then.
  if (isContest(files, *path)) {
    static_cast<void>(saveElsewhere(*path, report));
  } else {
    static_cast<void>(saveSafely(files, *path, report));
  }
}

}  // namespace scorvane
