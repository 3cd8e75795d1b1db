#include "output/save_report.h"

#include "session/open_contest.h"
#include "storage/safe_save.h"
#include "text/characters.h"

namespace scorvane {

void saveReport(Window& owner, FileSystem& files) {
  FileQuestion question;
  question.purpose = FileQuestion::Purpose::save;
  question.filters = {{"Text", "*.txt"}, {"All", "*.*"}};
  question.defaultExtension = "txt";
  // Without meaning when saving, and asked for all the same.
  question.fileMustExist = true;
  const std::optional<std::string> path = owner.chooseFile(question);
  if (!path) return;
  // The report is still on screen when this fails, and silence is what is wanted then.
  static_cast<void>(saveSafely(files, *path, withWindowsLineEnds(reportText())));
}

}  // namespace scorvane
