#include "app/shown_report.h"

#include <utility>

#include "session/open_contest.h"
#include "session/recovery.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

/// Another behaviour, whose changes of the contest are kept as they come.
class KeptBehaviour : public DialogBehaviour {
 public:
  explicit KeptBehaviour(DialogBehaviour& behaviour) : behaviour_(behaviour) {}

  void onOpen(Dialog& dialog) override { behaviour_.onOpen(dialog); }
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override {
    behaviour_.onEvent(dialog, id, event);
    // Nothing is stored while somebody types.
    if (event == ControlEvent::clicked || event == ControlEvent::selectionChanged) contestChanged();
  }
  void onClose(Dialog& dialog) override {
    behaviour_.onClose(dialog);
    contestChanged();
  }

 private:
  DialogBehaviour& behaviour_;
};

}  // namespace

void showReport(MainWindow& window, std::optional<std::string> report) {
  if (!report) return;
  reportText() = std::move(*report);
  window.refreshReportView();
}

int runDialogOverWelcome(MainWindow& window, int resourceId, DialogBehaviour& behaviour) {
  showReport(window, kWelcomeText);
  const int result = window.runDialog(resourceId, behaviour);
  window.refreshReportView();
  sayIfWorkIsNotKept(window);
  return result;
}

int runSetupOverWelcome(MainWindow& window, int resourceId, DialogBehaviour& behaviour) {
  KeptBehaviour kept(behaviour);
  return runDialogOverWelcome(window, resourceId, kept);
}

}  // namespace scorvane
