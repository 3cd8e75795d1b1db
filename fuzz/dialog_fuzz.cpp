// An operator who does anything: bytes become a small contest and a session on it, in which
// commands and dialogs follow each other and are clicked, typed, pasted and chosen in, in any
// order. After every command the contest must keep its promises and come through saving and loading
// unchanged, and every score must be that of whoever handed in the card. Nothing reaches the disk:
// the contest has no file name, or one in a folder that does not exist.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "app/command_table.h"
#include "app/file_menu.h"
#include "fuzz/checks.h"
#include "fuzz/contest_promises.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "storage/contest_writer.h"
#include "tests/app/memory_main_window.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

constexpr const char* kPathNowhere = "/no-such-folder/contest.scv";

class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : bytes_(bytes) {}

  [[nodiscard]] bool atEnd() const { return bytes_.empty(); }
  /// A number below `end`, which is 1 to 256; 0 when the bytes have run out.
  int below(std::size_t end) {
    if (bytes_.empty()) return 0;
    const auto value = static_cast<unsigned char>(bytes_.front());
    bytes_.remove_prefix(1);
    return static_cast<int>(value % end);
  }
  std::string_view take(std::size_t length) {
    const std::string_view taken = bytes_.substr(0, length);
    bytes_.remove_prefix(taken.size());
    return taken;
  }

 private:
  std::string_view bytes_;
};

Contest contestOf(Bytes& bytes) {
  ContestPlan plan;
  plan.contestants = bytes.below(25);
  plan.perTeam = 1 + bytes.below(4);
  plan.alternates = bytes.below(3);
  plan.emptyPercent = 10 * bytes.below(4);
  plan.classes = bytes.below(6);
  plan.reasonsClasses = bytes.below(4);
  plan.questionsClasses = bytes.below(3);
  plan.categories = bytes.below(4);
  plan.groups = 1 + bytes.below(5);
  Contest contest = makeContest(plan);
  if (bytes.below(2) == 1) contest.scores.clear();
  return contest;
}

/// Texts that fields of this program are sensitive to, or bytes of the input themselves.
std::string textOf(Bytes& bytes) {
  static const std::string_view kTexts[] = {
      "", "A", "Z", "Y", "0", "1", "2", "3", "4", "5", "7", "50", "51", "-1", "101", "102",
      "2147483647", "4294967295", "999", "none", " ", "\t", "Alpha", "a", "AB", "\r\n", "103", "26",
      "80", "1000", "10", "Beta", "\xff",
      // Sheets of a roster.
      "Alpha\tAnn\r\nAlpha\tBob\r\nBeta\tCy", "Team,Coach,Name,Alternate\r\nBeta,Kay,Dee,x\r\n",
      "Team,Member 1,Member 2,Alternate\r\nAlpha,Ann,Bob,Eve\r\n,Cy\r\nGamma,Flo,Gus,Hal"};
  const int kind = bytes.below(48);
  if (kind < static_cast<int>(std::size(kTexts))) return std::string(kTexts[kind]);
  if (kind == 47) return std::string(600, static_cast<char>('a' + bytes.below(26)));
  return std::string(bytes.take(static_cast<std::size_t>(1 + bytes.below(8))));
}

class Operator {
 public:
  explicit Operator(Bytes& bytes) : bytes_(bytes), promises_(currentContest()) {
    window_.operate = [this](MemoryDialog& dialog) { work(dialog); };
  }

  void runOneCommand() {
    const Command& command = anyCommand();
    currentFileName() = bytes_.below(2) == 1 ? kPathNowhere : "";
    answerEverything(window_.desktop);
    promises_.commandStarts(command.id);
    runCommand(command.id, window_);
    window_.log.clear();
    promises_.check(currentContest());
  }

 private:
  // Mostly what opens a dialog: plain reports are made of odder contests elsewhere.
  const Command& anyCommand() {
    static const std::vector<const Command*> dialogs = [] {
      std::vector<const Command*> found;
      for (const Command& command : commandTable()) {
        const Report* report = command.report();
        if (report == nullptr || report->ask != nullptr) found.push_back(&command);
      }
      return found;
    }();
    const auto place = static_cast<std::size_t>(bytes_.below(256));
    const std::size_t all = commandTable().size();
    return place < all ? commandTable()[place] : *dialogs[(place - all) % dialogs.size()];
  }

  void answerEverything(ScriptedDesktop& desktop) {
    static constexpr Answer kAnswers[] = {Answer::ok, Answer::cancel, Answer::no};
    const int kind = bytes_.below(4);
    // Far more than one action can ask; the last kind is OK, Cancel and No in turn.
    desktop.answers.resize(8);
    for (std::size_t i = 0; i < desktop.answers.size(); ++i) {
      desktop.answers[i] = kAnswers[kind < 3 ? static_cast<std::size_t>(kind) : i % 3];
    }
    desktop.files.clear();
    desktop.messages.clear();
    desktop.fileQuestions.clear();
  }

  void work(MemoryDialog& dialog) {
    while (!bytes_.atEnd() && !dialog.result()) {
      answerEverything(dialog.desktop);
      act(dialog);
      promises_.dialogActed(dialog);
    }
    answerEverything(dialog.desktop);
    if (!dialog.result()) dialog.pressCloseBox();
    if (!dialog.result()) dialog.pressEscape();
  }

  void act(MemoryDialog& dialog) {
    switch (bytes_.below(16)) {
      case 0:
        dialog.pressEnter();
        break;
      case 1:
        if (bytes_.below(4) == 0) dialog.pressEscape();
        break;
      case 2:
        if (bytes_.below(4) == 0) dialog.pressCloseBox();
        break;
      case 3:
        if (dialog.focused() != 0) dialog.keys(textOf(bytes_));
        break;
      case 4:
        useControl(dialog);
        dialog.pressEnter();
        break;
      default:
        useControl(dialog);
    }
  }

  void useControl(MemoryDialog& dialog) {
    if (dialog.controls().empty()) return;
    auto place = dialog.controls().begin();
    std::advance(place, bytes_.below(dialog.controls().size()));
    const auto& [id, control] = *place;
    if (control.isEdit()) {
      const bool pasted = bytes_.below(3) == 0;
      const std::string text = textOf(bytes_);
      pasted ? dialog.paste(id, text) : dialog.fill(id, text);
    } else if (control.isList()) {
      const int lines = dialog.lineCount(id);
      if (lines > 0) dialog.choose(id, bytes_.below(256) % lines);
    } else if (!control.statement.ends_with("TEXT")) {
      dialog.click(id);
    }
  }

  Bytes& bytes_;
  MemoryMainWindow window_;
  ContestPromises promises_;
};

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
  // The dialog in memory tells of what cannot be by failing a test.
  GTEST_FLAG_SET(break_on_failure, true);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Bytes bytes({reinterpret_cast<const char*>(data), size});
  prepareContest();
  currentContest() = readAgain(writeContest(contestOf(bytes)));
  Operator operator_(bytes);
  constexpr int kMostCommands = 12;
  for (int i = 0; i < kMostCommands && !bytes.atEnd(); ++i) operator_.runOneCommand();
  return 0;
}

}  // namespace scorvane
