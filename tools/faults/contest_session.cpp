// contest_session: an operator without a window, for injecting faults around. Each line of standard
// input is one command; each answer is one line: "ok", or the caption and the first line of the
// message box that the program showed.
//   open PATH     as File, Open          save          as File, Save
//   save_as PATH  as File, Save As       save_over     as File, Save, answering OK to a warning
//   name TEXT     sets the contest's name
//   type N C L    stores letter L for contestant N in the class of index C
//   look          takes in what others have saved
//   keep          keeps unsaved work from now on, as the program does from its start
//   earlier       how many of the contest's earlier saves can be opened, as "1 of 2"
//   size N        an invented contest of N contestants, under the file name that is current
//   bytes         a contest with names of every byte from 1 to 255
//   reread        whether the current file holds the contest: "ok", or the bytes that ended names
#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <variant>

#include "model/contest.h"
#include "model/numbering.h"
#include "session/contest_file.h"
#include "session/earlier_saves.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "session/shared_file.h"
#include "storage/contest_loader.h"
#include "storage/contest_reader.h"
#include "storage/file.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

/// Remembers the last message box; its file dialog returns the path that is asked for.
class Desk : public Window {
 public:
  std::string message;
  std::string path;
  bool agrees = false;

  Answer ask(const Message& shown) override {
    if (agrees && shown.buttons == Buttons::okCancel) return Answer::ok;
    message = shown.caption + ": " + shown.text.substr(0, shown.text.find_first_of("\r\n"));
    return shown.defaultAnswer;
  }
  std::optional<std::string> chooseFile(const FileQuestion& /*question*/) override { return path; }
};

/// Different for each byte even when it ends at it.
std::string nameWith(int byte) {
  std::string name = std::to_string(byte);
  name.append({'<', static_cast<char>(byte), '>'});
  return name;
}

Contest contestOfBytes() {
  ContestPlan plan;
  plan.contestants = 0;
  plan.classes = 0;
  Contest contest = makeContest(plan);
  contest.categories.clear();
  for (int byte = 1; byte <= 255; ++byte) {
    const std::string name = nameWith(byte);
    const ContestantNumber number = 100 + byte;
    contest.contestantNames[number] = name;
    contest.classes.add(name, false, false, 'A', {1, 1, 1}, 0);
    Team& team = contest.teams[name];
    team.coach = name;
    team.members.assign(teamSlots(contest.settings), number);
  }
  updateNextContestant(contest);
  return contest;
}

// Only what the reader works out itself may differ: group letters and places of unknown numbers.
std::string reread() {
  const auto loading = loadContestFile(systemFiles(), currentFileName());
  const auto* loaded = std::get_if<LoadedContest>(&loading);
  if (loaded == nullptr) return "no contest";
  const Contest* found = &loaded->contest;
  const Contest& kept = currentContest();
  std::string ended;
  for (const auto& [number, name] : kept.contestantNames) {
    if (contestantName(*found, number) != name)
      ended.append(" ").append(std::to_string(number - 100));
  }
  if (!ended.empty()) return "names end at bytes" + ended;
  const bool same = found->classes == kept.classes && found->teams == kept.teams &&
                    found->settings.contestName == kept.settings.contestName;
  return same ? "ok" : "another contest";
}

std::string earlier() {
  const auto saves = earlierSaves(systemFiles(), currentFileName());
  const auto whole = std::count_if(saves.begin(), saves.end(), [](const EarlierSave& save) {
    return std::holds_alternative<Contest>(readContest(*readEarlierSave(systemFiles(), save)));
  });
  return std::to_string(whole) + " of " + std::to_string(saves.size());
}

std::string follow(const std::string& command, const std::string& value, Desk& desk) {
  desk.message = "ok";
  desk.path = value;
  desk.agrees = command == "save_over";
  if (command == "open") {
    openContest(desk, value);
  } else if (command == "save" || command == "save_over") {
    saveCurrent(desk);
  } else if (command == "save_as") {
    saveContestAs(desk);
  } else if (command == "name") {
    currentContest().settings.contestName = value;
  } else if (command == "type") {
    int number = 0, classIndex = 0;
    char letter = 0;
    std::istringstream(value) >> number >> classIndex >> letter;
    ScoreRecord& record = currentContest().scores[number][classIndex];
    record.letter = letter;
    recomputeAllPlacingScores(currentContest());
    scoreStored({{number, classIndex, record}, {.letter = true}});
  } else if (command == "look") {
    takeInOthersWork();
  } else if (command == "keep") {
    startKeepingWork(systemFiles());
  } else if (command == "earlier") {
    return earlier();
  } else if (command == "size") {
    ContestPlan plan;
    plan.contestants = std::atoi(value.c_str());
    currentContest() = makeContest(plan);
  } else if (command == "bytes") {
    currentContest() = contestOfBytes();
  } else if (command == "reread") {
    return reread();
  } else {
    return "unknown command";
  }
  return desk.message;
}

}  // namespace

}  // namespace scorvane

int main() {
  using namespace scorvane;
  Desk desk;
  std::string line;
  while (std::getline(std::cin, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const std::size_t blank = line.find(' ');
    const std::string value = blank == std::string::npos ? "" : line.substr(blank + 1);
    std::cout << follow(line.substr(0, blank), value, desk) << std::endl;
  }
}
