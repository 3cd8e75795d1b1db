#include "exchange/exports.h"

#include <algorithm>
#include <utility>

#include "exchange/score_sheets.h"
#include "session/data_folder.h"
#include "session/open_contest.h"
#include "storage/safe_save.h"
#include "text/unicode.h"

namespace scorvane {

namespace {

bool hasExtension(std::string_view path, std::string_view extension) {
  if (path.size() < extension.size()) return false;
  const std::string_view end = path.substr(path.size() - extension.size());
  return std::equal(end.begin(), end.end(), extension.begin(), [](char typed, char wanted) {
    return typed == wanted || (typed >= 'A' && typed <= 'Z' && typed - 'A' + 'a' == wanted);
  });
}

bool isOpenContest(FileSystem& files, const std::string& path, const std::string& contestPath) {
  return !contestPath.empty() && reachesSameFile(files, path, contestPath);
}

bool writeTo(Window& owner, FileSystem& files, const std::string& path, const std::string& bytes,
             const char* what) {
  if (isOpenContest(files, path, currentFileName())) {
    owner.show("This is the file of the open contest.  Choose another name.", "Error");
    return false;
  }
  if (!exportFile(files, path, currentFileName(), bytes)) {
    owner.show(std::string(what) + " could NOT be written to this file:\r\n" + shownPath(path) +
                   "\r\nPerhaps another program has it open, or the disk is full.  Choose another "
                   "name or location.",
               "File Save Error");
    return false;
  }
  owner.show(std::string(what) + " were written to this file:\r\n" + shownPath(path),
             "Information");
  return true;
}

FileQuestion saveQuestion(std::vector<FileFilter> filters, const char* extension) {
  FileQuestion question;
  question.purpose = FileQuestion::Purpose::save;
  question.filters = std::move(filters);
  question.defaultExtension = extension;
  question.folder = contestFolder();
  return question;
}

}  // namespace

bool isPagePath(std::string_view path) {
  return hasExtension(path, ".html") || hasExtension(path, ".htm");
}

bool isSpreadsheetPath(std::string_view path) {
  return hasExtension(path, ".xlsx") || hasExtension(path, ".csv");
}

std::string spreadsheetBytes(const Contest& contest, std::string_view path) {
  const std::vector<Table> sheets = scoreSheets(contest);
  return hasExtension(path, ".csv") ? csvText(sheets.front()) : workbookBytes(sheets);
}

bool exportFile(FileSystem& files, const std::string& path, const std::string& contestPath,
                std::string_view bytes) {
  return !isOpenContest(files, path, contestPath) && saveSafely(files, path, bytes);
}

bool publishResults(Window& owner, FileSystem& files, PageContent content) {
  const auto path = owner.chooseFile(saveQuestion({{"Web Page", "*.html;*.htm"}}, "html"));
  if (!path) return false;
  if (!isPagePath(*path)) {
    owner.show("A web page needs a name that ends in .html.  Nothing was written.", "Error");
    return false;
  }
  return writeTo(owner, files, *path, resultsPage(currentContest(), content), "The results");
}

void exportScores(Window& owner, FileSystem& files) {
  const auto path = owner.chooseFile(
      saveQuestion({{"Workbook", "*.xlsx"}, {"Comma-Separated Text", "*.csv"}}, "xlsx"));
  if (!path) return;
  if (!isSpreadsheetPath(*path)) {
    owner.show(
        "A spreadsheet needs a name that ends in .xlsx, for a workbook, or in .csv, for text.  "
        "Nothing was written.",
        "Error");
    return;
  }
  writeTo(owner, files, *path, spreadsheetBytes(currentContest(), *path), "The scores");
}

}  // namespace scorvane
