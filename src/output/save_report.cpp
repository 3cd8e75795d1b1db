#include "output/save_report.h"

#include "storage/safe_save.h"
#include "view/report_text.h"

std::string withWindowsLineEnds(std::string_view text) {
  std::string converted;
  converted.reserve(text.size() + text.size() / 32);
  for (const char c : text) {
    if (c == '\n') converted += '\r';
    converted += c;
  }
  return converted;
}

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
