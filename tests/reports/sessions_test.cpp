// What the sessions beside this file, and those of results/, speak of: the dialogs that ask for a
// report. What they ask for is written down in place of the report.
#include "reports/round_verification_dialog.h"
#include "results/custom_report_dialog.h"
#include "session/open_contest.h"
#include "tests/support/contest_builder.h"
#include "tests/ui/session.h"
#include "text/format.h"

namespace scorvane {

namespace {

std::string inWords(const ReportRequest& request) {
  if (request.round) return formatText("of round %d", *request.round);
  std::string words = formatText(
      "'%s' %s of %s, %d%s, classes", request.title.c_str(), scoreKindWord(request.kind),
      request.team ? "teams" : "individuals", request.numToReport, request.percent ? " %" : "");
  for (const std::int32_t k : request.classes) appendFormat(words, " %d", k);
  return words;
}

template <typename Behaviour>
class Asking : public Behaviour {
 public:
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override {
    Behaviour::onEvent(dialog, id, event);
    if (this->request()) reportText() = inWords(*this->request());
  }
};

// Four groups judge three classes, so that group D judges none.
Contest threeClasses() {
  ContestBuilder builder;
  builder.contest.settings.numGroups = 4;
  builder.contest.settings.numToReport = 1;
  builder.contest.settings.reportPercent = true;
  builder.contest.groupLetters = {'A', 'B', 'C', 'D'};
  builder.categories({"Beef", "Sheep"});
  builder.addClass({.name = "Steers", .category = 0}).addClass({.name = "Ewes", .category = 1});
  return builder.addClass({.name = "Heifers", .reasons = true, .category = 0}).contest;
}

const SessionWorld kReports = {
    {{"Custom Report", [] { return std::make_unique<Asking<CustomReportDialog>>(); }},
     {"Round Verification Report",
      [] { return std::make_unique<Asking<RoundVerificationDialog>>(); }}},
    {{"three classes", threeClasses}},
    {{"no categories", [](Contest& c) { c.categories.clear(); }},
     {"one category", [](Contest& c) { c.categories.resize(1); }}}};

const bool kPlaysReport = playSessions("reports", kReports);
const bool kPlaysResult = playSessions("results", kReports);

}  // namespace

}  // namespace scorvane
