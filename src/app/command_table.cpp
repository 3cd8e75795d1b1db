#include "app/command_table.h"

#include <algorithm>
#include <array>

#include "app/entry_commands.h"
#include "app/file_menu.h"
#include "app/reasons_commands.h"
#include "app/results_commands.h"
#include "app/round_commands.h"
#include "app/setup_commands.h"
#include "app/shown_report.h"
#include "app/tools_menu.h"
#include "app/window_commands.h"
#include "output/save_report.h"
#include "reports/class_reports.h"
#include "reports/letter_report.h"
#include "reports/roster_reports.h"
#include "reports/round_reports.h"
#include "reports/team_score_reports.h"
#include "reports/zero_reports.h"
#include "results/tie_breaker_report.h"
#include "results/total_summary_report.h"
#include "session/open_contest.h"

namespace scorvane {

namespace {

// The report of a builder that asks nothing but the contest.
template <std::string (*build)(const Contest&)>
std::optional<std::string> plain(const Contest& contest, const ReportRequest& /*request*/) {
  return build(contest);
}

std::optional<std::string> tieBreakers(const Contest& /*contest*/,
                                       const ReportRequest& /*request*/) {
  return tieBreakerReport();
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

    Command{32837, "Admin Reports", "Classes Report", nullptr, plain<classesReport>},
    Command{32838, "Admin Reports", "Group Assignments", nullptr, plain<groupAssignmentsReport>},
    Command{32839, "Admin Reports", "Round Assignments", nullptr, plain<roundAssignmentsReport>},
    Command{32842, "Admin Reports", "Official Placings", nullptr, plain<officialPlacingsReport>},
    Command{32840, "Admin Reports", "Team Report", nullptr, plain<teamReport>},
    Command{32853, "Admin Reports", "Contestants Report", nullptr, plain<contestantsReport>},
    Command{32841, "Admin Reports", "Reasons Order", nullptr, plainReasonsOrder},
    Command{32869, "Admin Reports", "Contestant Reasons Report", nullptr, roomReasonsOrder},
    Command{32843, "Admin Reports", "Reasons Score Sheets", showReasonsOrderSheet,
            reasonsOrderSheet, ReportQuestion::reasonsClass},
    Command{32855, "Admin Reports", "Tie Breakers Report", nullptr, tieBreakers},

    Command{32791, "Score", "Lookup/Edit Individual Scores", lookUpScores},
    Command{32822, "Score", "Input Scores By Group", inputPlacings},
    Command{32823, "Score", "Input Reasons Scores", inputReasons},
    Command{32826, "Score", "Input Questions Scores By Group", inputQuestions},

    Command{32796, "Results Reports", "High Individual Overall", nullptr,
            highIndividual<ScoreKind::overall>},
    Command{32799, "Results Reports", "High Individual Placings", nullptr,
            highIndividual<ScoreKind::placings>},
    Command{32798, "Results Reports", "High Individual Reasons", nullptr,
            highIndividual<ScoreKind::reasons>},
    Command{32827, "Results Reports", "High Individual Questions", nullptr,
            highIndividual<ScoreKind::questions>},
    Command{32801, "Results Reports", "High Team Overall", nullptr, highTeam<ScoreKind::overall>},
    Command{32804, "Results Reports", "High Team Placings", nullptr, highTeam<ScoreKind::placings>},
    Command{32803, "Results Reports", "High Team Reasons", nullptr, highTeam<ScoreKind::reasons>},
    Command{32830, "Results Reports", "High Team Questions", nullptr,
            highTeam<ScoreKind::questions>},
    Command{32800, "Results Reports", "Custom/Category Report", runCustomReport,
            customReportAskedFor, ReportQuestion::custom},
    Command{32810, "Results Reports", "Total Summary Report", nullptr, plain<totalSummaryReport>},

    Command{32862, "Verification Reports", "Round Verification Report", runRoundVerification,
            roundVerification, ReportQuestion::round},
    Command{32846, "Verification Reports", "Verify Letter Scores", nullptr,
            plain<verifyScoresReport>},
    Command{32847, "Verification Reports", "Verify Placings By Team", nullptr,
            plain<verifyPlacingsReport>},
    Command{32848, "Verification Reports", "Verify Questions Scores", nullptr,
            plain<verifyQuestionsScoresReport>},
    Command{32844, "Verification Reports", "Verify Reasons Scores", showReasonsVerificationSheet,
            reasonsVerificationSheet, ReportQuestion::reasonsClass},
    Command{32845, "Verification Reports", "Reasons Scores By Team", nullptr,
            plain<reasonsByTeamReport>},
    Command{32849, "Verification Reports", "Zero Scores Report", nullptr, plain<zeroScoresReport>},
    Command{32850, "Verification Reports", "Zero Reasons Report", nullptr,
            plain<zeroReasonsReport>},
    Command{32851, "Verification Reports", "Zero Questions Report", nullptr,
            plain<zeroQuestionsReport>},

    Command{33023, "Tools", "Earlier Saves ...", runEarlierSaves},

    Command{32857, "Help", "Scorvane Help (F1)", helpCommand},
    Command{104, "Help", "About ...", aboutCommand},

    // In no menu: shows what the system's font chooser gives.
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

void runCommand(int id, MainWindow& window) {
  const Command* command = findCommand(id);
  if (command == nullptr) return;
  if (command->run != nullptr) {
    command->run(window);
  } else {
    showReport(window, command->report(currentContest(), {}));
  }
}

}  // namespace scorvane
