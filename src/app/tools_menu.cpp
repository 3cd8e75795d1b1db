#include "app/tools_menu.h"

#include <utility>
#include <vector>

#include "app/file_menu.h"
#include "app/shown_report.h"
#include "entry/move_cards_dialog.h"
#include "exchange/earlier_saves_dialog.h"
#include "exchange/exports.h"
#include "exchange/import_roster_dialog.h"
#include "exchange/publish_dialog.h"
#include "model/bring_in_scores.h"
#include "reports/differences_report.h"
#include "reports/listing_reports.h"
#include "reports/merge_report.h"
#include "results/awards_packet.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

void runImportRoster(MainWindow& window) {
  ImportRosterDialog dialog;
  runSetupOverWelcome(window, IDD_IMPORT_ROSTER, dialog);
  if (dialog.hasImported()) showReport(window, teamReport(currentContest()));
  showContestTitle(window);
}

void runMoveCards(MainWindow& window) {
  MoveCardsDialog dialog(currentContest());
  if (window.runDialog(IDD_MOVE_CARDS, dialog) != kOkId) return;
  showReport(window, differencesReport(dialog.after(), dialog.before(),
                                       {"Scores moved, exchanged or cleared", "Now", "Before"}));
  sayIfWorkIsNotKept(window);
}

void runEarlierSaves(MainWindow& window) {
  std::vector<EarlierSave> saves;
  if (isKeepingWork()) saves = earlierSaves(sessionFiles(), currentFileName());
  if (saves.empty()) {
    window.show(currentFileName().empty()
                    ? "Nothing was left of contests without a file.  Open a contest to see its "
                      "earlier saves."
                    : "There are no earlier saves of this contest yet.",
                "Information");
    return;
  }
  EarlierSavesDialog dialog(std::move(saves));
  const int result = window.runDialog(IDD_EARLIER_SAVES, dialog);
  const auto& save = dialog.compared();
  if (save && result == IDC_CHANGES_SINCE) {
    showReport(window, differencesReport(currentContest(), save->contest,
                                         {"Changes since " + save->name, "Now", "Then"}) +
                           "\n" + changedLists(currentContest(), save->contest));
  } else if (save) {
    showReport(window,
               differencesReport(currentContest(), save->contest,
                                 {"Differences between now and " + save->name, "Now", "Then"}));
  } else if (result == IDC_GO_BACK) {
    showReport(window, kWelcomeText);
  }
  showContestTitle(window);
  sayIfWorkIsNotKept(window);
}

namespace {

std::string bringInQuestion(const BroughtScores& brought, const std::string& from) {
  const auto counted = [](std::size_t count, const char* one, const char* many) {
    return std::to_string(count) + (count == 1 ? one : many);
  };
  std::string text = counted(brought.broughtIn.size(), " score that is", " scores that are") +
                     " missing here will be brought in from " + from + ".  " +
                     counted(brought.differing.size(), " score differs and stays as it is",
                             " scores differ and stay as they are") +
                     ".  ";
  const std::size_t people = brought.people.here.size() + brought.people.there.size();
  const std::size_t classes = brought.classes.here.size() + brought.classes.there.size();
  if (people + classes > 0) {
    text += "Left out: " + counted(people, " contestant", " contestants") + " and " +
            counted(classes, " class", " classes") + " that only one of the files has.  ";
  }
  if (!brought.leftOut.empty()) {
    text += "Left out: " + counted(brought.leftOut.size(), " score", " scores") +
            " of classes without such scores.  ";
  }
  return text + "Continue?";
}

}  // namespace

void runBringInScores(MainWindow& window) {
  const auto request = askOtherContest(window);
  if (!request) return;
  BroughtScores brought = bringInScores(currentContest(), *request->other);
  const std::string report = broughtScoresReport(brought);
  if (!brought.broughtIn.empty()) {
    if (!window.confirm(bringInQuestion(brought, request->otherName))) return;
    currentContest() = std::move(brought.contest);
    contestChanged();
    saveCurrent(window);
    showContestTitle(window);
  }
  showReport(window, report);
  sayIfWorkIsNotKept(window);
}

void runPublishResults(MainWindow& window) {
  PublishDialog dialog;
  window.runDialog(IDD_PUBLISH, dialog);
}

void runExportScores(MainWindow& window) {
  exportScores(window, sessionFiles());
}

}  // namespace scorvane
