#include "app/command_table.h"

#include <algorithm>
#include <array>

#include "app/dialog_commands.h"
#include "app/file_menu.h"
#include "app/shared_work.h"
#include "app/tools_menu.h"
#include "app/window_commands.h"
#include "output/save_report.h"
#include "reasons/reasons_reports.h"
#include "reports/differences_report.h"
#include "reports/entry_progress_report.h"
#include "reports/listing_reports.h"
#include "reports/round_reports.h"
#include "reports/verification_reports.h"
#include "results/announcers_list.h"
#include "results/awards_packet.h"
#include "results/class_analysis_report.h"
#include "results/contest_check.h"
#include "results/high_reports.h"
#include "results/rankings.h"
#include "results/score_cards_report.h"
#include "results/tie_breakers.h"
#include "results/total_summary_report.h"
#include "session/open_contest.h"

namespace scorvane {

namespace {

// Builders of one type for the table. First those that need nothing but the contest.
template <std::string (*build)(const Contest&)>
std::optional<std::string> plain(const Contest& contest, const ReportRequest& /*request*/) {
  return build(contest);
}

// The others, from what the request tells them.

std::optional<std::string> tieBreakers(const Contest& /*contest*/,
                                       const ReportRequest& /*request*/) {
  return tieBreakerReport();
}

template <ScoreKind kind>
std::optional<std::string> highIndividual(const Contest& contest,
                                          const ReportRequest& /*request*/) {
  return highIndividualReport(contest, wholeContestRequest(contest, kind));
}

template <ScoreKind kind>
std::optional<std::string> highTeam(const Contest& contest, const ReportRequest& /*request*/) {
  return highTeamReport(contest, wholeContestRequest(contest, kind));
}

std::optional<std::string> custom(const Contest& contest, const ReportRequest& request) {
  return customReport(contest, request);
}

template <ReasonsOrderForm form>
std::optional<std::string> reasonsOrder(const Contest& contest, const ReportRequest& /*request*/) {
  return reasonsOrderReport(contest, form);
}

template <ReasonsSheet form>
std::optional<std::string> sheet(const Contest& contest, const ReportRequest& request) {
  if (!request.classIndex) return std::nullopt;
  return reasonsSheet(contest, form, *request.classIndex);
}

std::optional<std::string> comparison(const Contest& contest, const ReportRequest& request) {
  if (request.other == nullptr) return std::nullopt;
  return differencesReport(contest, *request.other,
                           {"Comparison with " + request.otherName, "Here", "There"});
}

std::optional<std::string> roundVerification(const Contest& contest, const ReportRequest& request) {
  const std::int32_t round = request.round.value_or(-1);
  if (round < 0 || round >= contest.classes.count()) return std::nullopt;
  return roundVerificationReport(contest, round);
}

template <bool small>
void printReport(MainWindow& window) {
  window.print(small);
  window.refreshReportView();
}

void saveReportToFile(MainWindow& window) {
  saveReport(window, systemFiles());
}

constexpr std::array kCommands = {
    Command{32771, "File", "New Contest", newContestCommand},
    Command{32772, "File", "Open Contest", openContestCommand},
    Command{32773, "File", "Save Contest", saveContestCommand},
    Command{32774, "File", "Save Contest As", saveContestAsCommand},
    Command{32805, "File", "Print", printReport<false>},
    Command{32811, "File", "Print Small Font", printReport<true>},
    Command{32832, "File", "Save Report To File", saveReportToFile},
    Command{105, "File", "Exit", exitCommand},

    Command{32777, "Edit", "Copy", copyReportToClipboard},

    Command{32787, "Setup", "Setup Contest", runSetupContest},
    Command{32788, "Setup", "Setup Classes", runSetupClasses},
    Command{32789, "Setup", "Setup Teams", runSetupTeams},
    Command{32867, "Setup", "Generate Reasons Order", runGenerateReasonsOrder},
    Command{32864, "Setup", "Edit Reasons Order", runEditReasonsOrder},
    Command{32856, "Setup", "Edit Contestants", runEditContestants},

    Command{32837, "Admin Reports", "Classes Report", Report{plain<classesReport>}},
    Command{32838, "Admin Reports", "Group Assignments", Report{plain<groupAssignmentsReport>}},
    Command{32839, "Admin Reports", "Round Assignments", Report{plain<roundAssignmentsReport>}},
    Command{32842, "Admin Reports", "Official Placings", Report{plain<officialPlacingsReport>}},
    Command{32840, "Admin Reports", "Team Report", Report{plain<teamReport>}},
    Command{32853, "Admin Reports", "Contestants Report", Report{plain<contestantsReport>}},
    Command{32841, "Admin Reports", "Reasons Order", Report{reasonsOrder<ReasonsOrderForm::plain>}},
    Command{32869, "Admin Reports", "Contestant Reasons Report",
            Report{reasonsOrder<ReasonsOrderForm::room>}},
    Command{32843, "Admin Reports", "Reasons Score Sheets",
            Report{sheet<ReasonsSheet::order>, askReasonsClass}},
    Command{32855, "Admin Reports", "Tie Breakers Report", Report{tieBreakers}},

    Command{32791, "Score", "Lookup/Edit Individual Scores", lookUpScores},
    Command{32822, "Score", "Input Scores By Group", inputPlacings},
    Command{32823, "Score", "Input Reasons Scores", inputReasons},
    Command{32826, "Score", "Input Questions Scores By Group", inputQuestions},

    Command{32796, "Results Reports", "High Individual Overall",
            Report{highIndividual<ScoreKind::overall>}},
    Command{32799, "Results Reports", "High Individual Placings",
            Report{highIndividual<ScoreKind::placings>}},
    Command{32798, "Results Reports", "High Individual Reasons",
            Report{highIndividual<ScoreKind::reasons>}},
    Command{32827, "Results Reports", "High Individual Questions",
            Report{highIndividual<ScoreKind::questions>}},
    Command{32801, "Results Reports", "High Team Overall", Report{highTeam<ScoreKind::overall>}},
    Command{32804, "Results Reports", "High Team Placings", Report{highTeam<ScoreKind::placings>}},
    Command{32803, "Results Reports", "High Team Reasons", Report{highTeam<ScoreKind::reasons>}},
    Command{32830, "Results Reports", "High Team Questions",
            Report{highTeam<ScoreKind::questions>}},
    Command{32800, "Results Reports", "Custom/Category Report", Report{custom, askCustom}},
    Command{32810, "Results Reports", "Total Summary Report", Report{plain<totalSummaryReport>}},

    Command{32862, "Verification Reports", "Round Verification Report",
            Report{roundVerification, askRound}},
    Command{32846, "Verification Reports", "Verify Letter Scores",
            Report{plain<verifyScoresReport>}},
    Command{32847, "Verification Reports", "Verify Placings By Team",
            Report{plain<verifyPlacingsReport>}},
    Command{32848, "Verification Reports", "Verify Questions Scores",
            Report{plain<verifyQuestionsScoresReport>}},
    Command{32844, "Verification Reports", "Verify Reasons Scores",
            Report{sheet<ReasonsSheet::verification>, askReasonsClass}},
    Command{32845, "Verification Reports", "Reasons Scores By Team",
            Report{plain<reasonsByTeamReport>}},
    Command{32849, "Verification Reports", "Zero Scores Report", Report{plain<zeroScoresReport>}},
    Command{32850, "Verification Reports", "Zero Reasons Report", Report{plain<zeroReasonsReport>}},
    Command{32851, "Verification Reports", "Zero Questions Report",
            Report{plain<zeroQuestionsReport>}},

    Command{33001, "Tools", "Import Roster ...", runImportRoster},
    Command{33002, "Tools", "Publish Results ...", runPublishResults},
    Command{33003, "Tools", "Export Scores To Spreadsheet ...", runExportScores},
    Command{33013, "Tools", "Announcer's List", Report{plain<announcersList>}},
    Command{33016, "Tools", "Awards Packet", Report{plain<awardsPacket>}},
    Command{33011, "Tools", "Score Cards By Team", Report{plain<scoreCardsReport>}},
    Command{33012, "Tools", "Class Analysis", Report{plain<classAnalysisReport>}},
    Command{33014, "Tools", "Entry Progress", Report{plain<entryProgressReport>}},
    Command{33015, "Tools", "Contest Check",
            Report{plain<contestCheckReport>, nullptr, tellsOfThings}},
    Command{33024, "Tools", "Move Or Clear Cards ...", runMoveCards},
    Command{33021, "Tools", "Compare With Another File ...", Report{comparison, askOtherContest}},
    Command{33022, "Tools", "Bring In Scores ...", runBringInScores},
    Command{33023, "Tools", "Earlier Saves ...", runEarlierSaves},

    Command{32857, "Help", "Scorvane Help (F1)", helpCommand},
    Command{104, "Help", "About ...", aboutCommand},

    // In no menu: shows the fields of the font that the system's font chooser returns.
    Command{32809, "", "", fontCommand},
};

}  // namespace

std::span<const Command> commandTable() {
  return kCommands;
}

const Command* findCommand(int id) {
  const auto found = std::find_if(kCommands.begin(), kCommands.end(),
                                  [id](const Command& c) { return c.id == id; });
  return found == kCommands.end() ? nullptr : &*found;
}

namespace {

/// Whether it shows or changes the contest itself, and not only its file or the report on screen.
bool worksOnContest(const Command& command) {
  const auto isOf = [&command](std::string_view menu) { return command.menu == menu; };
  return !isOf("") && !isOf("File") && !isOf("Edit") && !isOf("Help");
}

}  // namespace

void runCommand(int id, MainWindow& window) {
  const Command* command = findCommand(id);
  if (command == nullptr) return;
  if (worksOnContest(*command)) {
    lookForOthersWork(window);
    // Nobody shall type cards under numbers that have just become those of others.
    if (command->report() == nullptr && tellNews(window)) return;
  }
  if (const Report* report = command->report()) {
    runReport(window, *report);
  } else {
    const std::string name = currentContest().settings.contestName;
    std::get<void (*)(MainWindow&)>(command->does)(window);
    if (worksOnContest(*command)) {
      lookForOthersWork(window);
      if (currentContest().settings.contestName != name) showContestTitle(window);
    }
  }
  tellNews(window);
}

}  // namespace scorvane
