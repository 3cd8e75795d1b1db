#include "app/shared_work.h"

#include <cstddef>
#include <string>

#include "app/file_menu.h"
#include "reports/merge_report.h"
#include "session/open_contest.h"
#include "session/shared_file.h"
#include "text/format.h"
#include "text/report_marks.h"
#include "text/unicode.h"

namespace scorvane {

namespace {

using Replaced = SharingNews::Replaced;

std::string replacedText(Replaced replaced, bool isKept) {
  std::string text;
  switch (replaced) {
    case Replaced::nothing:
      return text;
    case Replaced::anotherContest:
      text = "This file held another contest when yours was saved:";
      break;
    case Replaced::noContest:
      text = "This file held no contest any more when yours was saved:";
      break;
    case Replaced::missingFile:
      text = "This file was gone when your contest was saved, and was made anew:";
      break;
  }
  text += "\r\n" + shownPath(currentFileName()) + "\r\n";
  if (replaced != Replaced::missingFile) {
    text += isKept ? "What it held is one of the earlier saves now.  See Tools->Earlier Saves.\r\n"
                   : "What it held could NOT be kept as one of the earlier saves.\r\n";
  }
  return text;
}

void appendCount(std::string& text, std::size_t count, const char* one, const char* many) {
  if (count > 0) text += std::to_string(count) + (count == 1 ? one : many) + "\r\n";
}

std::string mergeText(const Merge& merge, bool isKept) {
  std::string text = "Your contest was saved together with what somebody else has saved.\r\n\r\n";
  appendCount(text, merge.values.size() + merge.scores.size(), " value differs; yours was saved.",
              " values differ; yours were saved.");
  appendCount(text, merge.lostRemovals.size(),
              " removal was not done, as the other side has changed it.",
              " removals were not done, as the other side has changed them.");
  appendCount(text, merge.numbers.size(), " contestant has another number now.",
              " contestants have other numbers now.");
  return text +
         "\r\nThe report lists them.  Please settle them with the cards in hand.  The contest as "
         "the other side saved it " +
         (isKept ? "is one of the earlier saves.\r\n"
                 : "could NOT be kept as one of the earlier saves.\r\n");
}

}  // namespace

void lookForOthersWork(MainWindow& window) {
  if (takeInOthersWork()) showContestTitle(window);
}

bool tellNews(MainWindow& window) {
  const auto news = takeNews();
  if (!news) return false;
  std::string text = replacedText(news->replaced, news->isKept);
  if (!news->merge.isSmooth()) {
    text += (text.empty() ? "" : "\r\n") + mergeText(news->merge, news->isKept);
    std::string& report = reportText();
    report = (report == kWelcomeText ? std::string() : report + "\n") + mergeReport(news->merge);
  }
  window.refreshReportView();
  window.show(text, "Information");
  return true;
}

}  // namespace scorvane
