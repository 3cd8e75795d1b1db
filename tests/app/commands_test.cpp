// What an operator sees of the commands, as approved; the resource scripts' menu, accelerators and
// mnemonics, against the command table and each other.
#include <gtest/gtest.h>

#include <ctime>
#include <regex>
#include <set>

#include "app/command_table.h"
#include "app/file_menu.h"
#include "model/contest.h"
#include "reasons/reasons_ids.h"
#include "reasons/reasons_order_generation.h"
#include "reports/round_verification_ids.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "tests/app/memory_main_window.h"
#include "tests/reasons/reasons_contest.h"
#include "tests/support/approved.h"
#include "tests/support/temporary_folder.h"
#include "tests/ui/dialog_template.h"

namespace scorvane {

namespace {

constexpr int kCopy = 32777, kGenerate = 32867, kSheet = 32843, kReasons = 32823;
constexpr int kCustom = 32800, kRound = 32862;
constexpr int kHelp = 32857, kFont = 32809, kAbout = 104;

// Chooses what a dialog must be told, and presses Enter.
void operate(MemoryDialog& dialog) {
  for (const ControlId list :
       {IDC_VERIFIED_ROUNDS, IDC_REASONS_CLASSES, IDC_REASONS_GROUPS, IDC_UNASSIGNED_SPEAKERS}) {
    if (dialog.controls().contains(list)) dialog.choose(list, 1);
  }
  dialog.pressEnter();
}

class Commands : public testing::Test {
 protected:
  Commands() { start(); }
  ~Commands() override { currentContest() = Contest{}; }

  // A contest whose folder is gone.
  void start() {
    currentContest() = reasonsContest(3, 3, 6);
    currentFileName() = "gone/fair.scv";
    reportText() = window.onScreen = "before\n";
    window.desktop.answers = {Answer::ok};
    window.operate = operate;
  }
  void run(int id) {
    const Command* command = findCommand(id);
    window.log += std::to_string(id) + " ";
    window.log.append(command == nullptr ? "(no command)" : command->caption).append("\n");
    runCommand(id, window);
  }
  MemoryMainWindow window;
};

TEST_F(Commands, DoWhatTheMenuSays) {
  std::string reports = "only the report of this name:";
  for (const Command& command : commandTable()) {
    start();
    const std::string before = window.log;
    run(command.id);
    const std::string done = window.log.substr(window.log.find('\n', before.size()) + 1);
    const std::regex named("  shown: " + std::string(command.caption) +
                           "( Report| |  \\(scoring the top 1 per team\\))?, lines: \\d+\n");
    if (std::regex_match(done, named)) {
      window.log = before;
      reports.append(" ").append(std::to_string(command.id));
    }
  }
  // The message of a save that failed is there in full once.
  const std::string failed = "File Save Error: ";
  const std::size_t first = window.log.find(failed) + failed.size();
  const std::string text = window.log.substr(first, window.log.find("\n\n", first) + 2 - first);
  for (std::size_t next = first; (next = window.log.find(text, next + 1)) != std::string::npos;) {
    window.log.replace(next, text.size(), "(again)\n");
  }
  expectApproved(window.log + reports + "\n", "app/commands.txt");
}

TEST_F(Commands, SayWhatIsInTheirWay) {
  using Copied = MainWindow::CopyResult;
  for (const Copied result : {Copied::noMemory, Copied::noLock}) {
    window.copyResult = result;
    run(kCopy);
  }
  window.manualOpens = false;
  run(kHelp);
  window.font = FontFields{};
  *window.font = {-13, 2, 30, 40, 700, 1, 2, 3, 4, 5, 6, 7, 8, "Consolas"};
  run(kFont);

  const Contest before = currentContest();
  window.desktop.answers = {Answer::cancel, Answer::ok};
  run(kGenerate);
  EXPECT_EQ(currentContest(), before);
  currentContest().settings.numReasonsGroups = 2;
  run(kGenerate);

  window.operate = [](MemoryDialog& dialog) {
    dialog.pressEnter();
    dialog.pressEscape();
  };
  run(kSheet);
  window.operate = [](MemoryDialog& dialog) {
    dialog.choose(IDC_REASONS_CLASSES, 0);
    dialog.pressCloseBox();
  };
  run(kSheet);
  window.operate = [](MemoryDialog& dialog) { dialog.pressCloseBox(); };
  run(kAbout);
  window.operate = operate;
  currentContest().reasonsOrder.reset(0, 3);
  run(kSheet);
  EXPECT_EQ(reportText(), "before\n");
  run(kReasons);
  run(1);  // no command
  expectApproved(window.log, "app/obstacles.txt");
  start();
  window.operate = [](MemoryDialog& dialog) { dialog.pressEscape(); };
  for (const int id : {kCustom, kRound}) run(id);
  EXPECT_EQ(reportText(), "before\n") << "a report nobody chose";
}

TEST_F(Commands, GenerateAReasonsOrderFromTheTime) {
  const Contest contest = reasonsContest(1, 1, 100);
  currentContest() = contest;
  const std::time_t start = std::time(nullptr);
  run(kGenerate);
  bool isFromTheTime = false;
  for (std::time_t seed = start; seed <= std::time(nullptr); ++seed) {
    Contest generated = contest;
    EXPECT_EQ(generateReasonsOrder(generated, static_cast<std::uint32_t>(seed)), std::nullopt);
    isFromTheTime = isFromTheTime || generated == currentContest();
  }
  EXPECT_TRUE(isFromTheTime);
}

// The results of individuals and of teams share their mnemonics, four by four.
TEST(Menu, OffersEveryCommandInTheTablesOrderByAKeyOfItsOwn) {
  std::set<std::string> taken;
  const auto withoutMark = [&taken](const std::string& menu, std::string caption) {
    const std::size_t mark = caption.find('&');
    EXPECT_NE(mark, std::string::npos) << caption;
    caption.erase(std::min(mark, caption.size()), 1);
    std::string key = menu + (caption.starts_with("High Team") ? " teams " : " ");
    key.push_back(static_cast<char>(std::tolower(static_cast<unsigned char>(caption[mark]))));
    EXPECT_TRUE(taken.insert(key).second) << caption;
    return caption;
  };
  const std::string script = sourceFile("src/app/menu.rc");
  const std::regex statement(R"re(POPUP "([^"]*)"|MENUITEM "([^"]*)", (\d+))re");
  std::string menu, offered, expected;
  for (std::sregex_iterator it(script.begin(), script.end(), statement), end; it != end; ++it) {
    if ((*it)[1].matched) {
      menu = withoutMark("", (*it)[1]);
    } else {
      offered += menu + ": " + withoutMark(menu, (*it)[2]) + " " + it->str(3) + "\n";
    }
  }
  for (const Command& command : commandTable()) {
    if (command.menu.empty()) continue;
    expected.append(command.menu).append(": ").append(command.caption).append(" ");
    expected += std::to_string(command.id) + "\n";
  }
  EXPECT_EQ(offered, expected);
}

// A letter pressed with Alt leads to one control only, D to Done everywhere. With larger dialogs
// the buttons would be beyond a display of 1280 by 720 dots at 150 per cent.
TEST(Dialogs, HaveMnemonicsOfTheirOwnAndFitASmallDisplay) {
  EXPECT_FALSE(dialogTemplates().empty());
  for (const auto& [name, dialog] : dialogTemplates()) {
    EXPECT_LE(dialog.width, 440) << name;
    EXPECT_LE(dialog.height, 210) << name;
    std::set<int> letters;
    for (const TemplateControl& control : dialog.controls) {
      const std::size_t mark = control.caption.find('&');
      if (mark == std::string::npos) continue;
      EXPECT_TRUE(letters.insert(std::toupper(control.caption[mark + 1])).second)
          << name << ": " << control.caption;
      EXPECT_EQ(control.caption[mark + 1] == 'D', control.caption == "&Done") << name;
    }
  }
}

TEST(ContestFileCommands, TakeThePathOutOfTheCommandLine) {
  struct Case {
    std::string line, path;
  };
  for (const Case& c : {Case{"", ""},
                        {" \t ", ""},
                        {"a.scv", "a.scv"},
                        {" C:\\My Contests\\a b.scv  ", "C:\\My Contests\\a b.scv"},
                        {"\"C:\\My Contests\\a.scv\" \"more\"", "C:\\My Contests\\a.scv"},
                        {"\"never closed.scv", "never closed.scv"},
                        {"\"\"", ""}}) {
    EXPECT_EQ(contestPath(c.line), c.path) << c.line;
  }
}

// From the start, over a first save that is cancelled, to names that are too long for the title.
TEST(ContestFileCommands, TellOfOneAfternoonAsApproved) {
  const TemporaryFolder folder;
  const std::string path = folder.file("county show.scv");
  MemoryMainWindow window;
  std::string& log = window.log;
  const auto step = [&](const std::string& name, const std::function<void()>& act) {
    reportText() = "a report\n";
    log += name + "\n";
    act();
    log += "  now: " + currentFileName() + ", " + currentContest().settings.contestName + "\n";
  };
  setProgramTitle("Scorvane");
  step("started", [&] {
    prepareContest();
    window.refreshReportView();
    openContestOfCommandLine(window, "  ");
  });
  EXPECT_EQ(currentContest().groupLetters, (std::vector<char>{'A', 'B', 'C', 'D', 'E'}));
  EXPECT_FALSE(currentContest().settings.contestDate.empty());
  currentContest().settings.contestName = "County Show";
  window.desktop.files = {std::nullopt, path, path, std::nullopt};
  for (const int command : {32774, 32773, 32771, 32772, 32772}) {
    step(std::string(findCommand(command)->caption), [&] { runCommand(command, window); });
  }
  step("named", [&] { openContestOfCommandLine(window, "\"" + path + "\""); });
  step("missing", [&] { openContestOfCommandLine(window, "nowhere.scv"); });
  // Cut to the longest path there is, this would be the name of the contest.
  const std::string slashes(kMaxPathLength - path.size(), '/');
  step("too long", [&] { openContestOfCommandLine(window, slashes + path + "x"); });
  log.erase(log.find(slashes), slashes.size());
  for (std::size_t at; (at = log.find(folder.path())) != std::string::npos;) {
    log.replace(at, folder.path().size(), "FOLDER");
  }
  expectApproved(log, "app/contest_files.txt");

  currentFileName() = std::string(300, 'f');
  currentContest().settings.contestName = std::string(300, 'c');
  log.clear();
  showContestTitle(window);
  EXPECT_EQ(log, "  title: Scorvane - " + currentFileName() + " - " + std::string(185, 'c') + "\n");
}

}  // namespace

}  // namespace scorvane
