#include "tests/ui/session.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>
#include <utility>

#include "session/contest_file.h"
#include "session/open_contest.h"
#include "storage/contest_writer.h"
#include "tests/support/approved.h"
#include "tests/ui/memory_dialog.h"
#include "text/format.h"

namespace scorvane {

namespace {

// On one line, in characters that everything can show; and back.
std::string escaped(std::string_view text) {
  std::string line;
  for (const char c : text) {
    const bool isPlain = c >= ' ' && c <= '~';
    line += c == '\n' ? "\\n" : isPlain ? std::string(1, c) : formatText("\\x%02hhX", c);
  }
  return line;
}

std::string unescaped(std::string text) {
  for (std::size_t i = 0; (i = text.find("\\x", i)) != std::string::npos; ++i) {
    text.replace(i, 4, 1, static_cast<char>(std::stoi(text.substr(i + 2, 2), nullptr, 16)));
  }
  return text;
}

template <typename Column>
std::string listed(const Column& column) {
  std::ostringstream list;
  for (const auto& element : column) list << '|' << element;
  return list.str();
}

// The lines of the file that the contest would be saved to, and what no file holds, by what a line
// is about: its first field, of a score the first two. Classes are shown column by column.
std::map<std::string, std::string> storedNow() {
  const Contest& contest = currentContest();
  const JudgingClasses& c = contest.classes;
  std::map<std::string, std::string> stored;
  const auto add = [&stored](const std::string& line) {
    static const std::regex about(R"(\d+\|\d+\|.\||[^|]*)");
    std::smatch subject;
    std::regex_search(line, subject, about, std::regex_constants::match_continuous);
    std::string& lines = stored[subject.str()];
    lines.append(lines.empty() ? "" : "; ").append(line);
  };
  add("report|" + reportText());
  add("group letters" + listed(contest.groupLetters));
  add("classes|" + listed(c.className) + ' ' + listed(c.officialLetter) + ' ' +
      listed(c.reasonsFlag) + ' ' + listed(c.questionsFlag) + ' ' + listed(c.cut1) + ' ' +
      listed(c.cut2) + ' ' + listed(c.cut3) + ' ' + listed(c.categoryIndex));
  add(formatText("next number|%d in group %c", contest.settings.nextContestantNum,
                 contest.settings.nextGroupLetter));
  for (const auto& [number, letter] : contest.contestantGroup) {
    add(formatText("group of %d|%c", number, letter));
  }
  for (const auto& [cell, number] : contest.reasonsOrder.cells()) {
    add(formatText("reasons group %d, row %d|%d", cell.first, cell.second, number));
  }
  for (const auto& [number, records] : contest.scores) {
    add(formatText("records of %d|%zu", number, records.size()));
  }
  bool isClass = false;
  std::istringstream file(writeContest(contest));
  for (std::string line; std::getline(file, line, '\r'); file.get()) {
    std::replace(line.begin(), line.end(), '\t', '|');
    const bool isCount = line.find_first_not_of("0123456789") == std::string::npos;
    if (line.starts_with('~')) isClass = line == "~~~~~Classes~~~~~";
    if (!isClass && !isCount && !line.ends_with("| |0|0|0")) add(line);  // blank records
  }
  return stored;
}

// The buttons of a question, with a mark at the one that Enter presses.
std::string buttonsOf(const Message& message) {
  const bool agrees = message.defaultAnswer == Answer::ok || message.defaultAnswer == Answer::yes;
  if (message.buttons == Buttons::ok) return "";
  if (message.buttons == Buttons::yesNo) return agrees ? " [>Yes|No]" : " [Yes|>No]";
  return agrees ? " [>OK|Cancel]" : " [OK|>Cancel]";
}

using Step = void (*)(MemoryDialog&, ControlId, const std::string&);

const std::map<std::string, Step> kSteps = {
    {"type", [](auto& dialog, auto, auto& text) { dialog.keys(text); }},
    {"fill", [](auto& dialog, auto id, auto& text) { dialog.fill(id, text); }},
    {"paste", [](auto& dialog, auto id, auto& text) { dialog.paste(id, text); }},
    {"set", [](auto& dialog, auto id, auto& text) { dialog.setText(id, text); }},
    {"press", [](auto& dialog, auto id, auto&) { dialog.click(id); }},
    {"focus", [](auto& dialog, auto id, auto&) { dialog.focus(id); }},
    {"default", [](auto& dialog, auto id, auto&) { dialog.setDefaultButton(id); }},
    {"choose", [](auto& dialog, auto id, auto& text) { dialog.choose(id, std::stoi(text) - 1); }},
    {"move", [](auto& dialog, auto id, auto& text) { dialog.moveTo(id, std::stoi(text) - 1); }},
    {"unselect", [](auto& dialog, auto id, auto&) { dialog.select(id, std::nullopt); }},
    {"Enter", [](auto& dialog, auto, auto&) { dialog.pressEnter(); }},
    {"Escape", [](auto& dialog, auto, auto&) { dialog.pressEscape(); }},
    {"close", [](auto& dialog, auto, auto&) { dialog.pressCloseBox(); }},
    {"file", [](auto& dialog, auto, auto& text) { dialog.desktop.files = {text}; }},
    {"answer", [](auto& dialog, auto, auto& text) {
       dialog.desktop.answers = {text == "OK"    ? Answer::ok
                                 : text == "Yes" ? Answer::yes
                                 : text == "No"  ? Answer::no
                                                 : Answer::cancel};
     }}};

// Plays sessions and writes down how they go.
class Stage {
 public:
  explicit Stage(const SessionWorld& world) : world_(world) {}

  std::string play(const std::string& session) {
    std::istringstream lines(session);
    for (std::string line; std::getline(lines, line);) {
      if (line.starts_with("  ")) continue;  // what it is held against
      const bool isRemark = line.empty() || line[0] == '#';
      played_ += (isRemark ? line : take(line)) + '\n';
      const std::size_t end = played_.size();
      if (!isRemark) writeChanges();
      if (line.starts_with("reopen")) played_.resize(end);
    }
    return played_;
  }

 private:
  // Takes the steps of a line; returns the line with the controls' names as they are.
  std::string take(const std::string& line) {
    static const std::regex opening("(?:re)?open (.*) over (.*)");
    static const std::regex step(R"((\w+)(?:( [^:]*)? (\d+))?(: (.*))?)");
    std::smatch part;
    if (std::regex_match(line, part, opening)) {
      open(part[1], part[2]);
      return line;
    }
    const std::size_t end = line.find("; ");
    const std::string first = line.substr(0, end);
    if (!std::regex_match(first, part, step)) ADD_FAILURE() << "no step: " << first;
    const ControlId id = part[3].matched ? std::stoi(part[3]) : 0;
    if (part[1] == "meanwhile") {
      world_.events.at(part[5])(currentContest());
      stored_ = storedNow();
    } else {
      kSteps.at(part[1])(*dialog_, id, unescaped(part[5]));
    }
    return part.str(1) + (id == 0 ? "" : ' ' + nameOf(id)) + part.str(4) +
           (end == std::string::npos ? "" : "; " + take(line.substr(end + 2)));
  }

  void open(const std::string& caption, const std::string& history) {
    const auto declared =
        std::find_if(dialogTemplates().begin(), dialogTemplates().end(),
                     [&](const auto& entry) { return entry.second.caption == caption; });
    template_ = &declared->second;
    reportText() = "a report";
    currentFileName().clear();
    std::istringstream names(history);
    std::string name;
    std::getline(names, name, ',');
    currentContest() = world_.contests.at(name)();
    while (std::getline(names, name, ',')) world_.events.at(name.substr(1))(currentContest());
    shown_.clear();
    lists_.clear();
    selected_.clear();
    stored_ = storedNow();
    dialog_.reset();
    behaviour_ = world_.dialogs.at(caption)();
    dialog_.emplace(std::stoi(declared->first), *behaviour_);
  }

  std::string nameOf(ControlId id) const {
    std::string label;
    for (const TemplateControl& control : template_->controls) {
      if (!control.caption.empty()) label = control.caption;
      if (control.id != id) continue;
      // The caption before a static text is another one's.
      if (control.statement.ends_with("TEXT") && control.statement != "EDITTEXT" &&
          !control.name.empty()) {
        label = control.name;
      }
      break;
    }
    std::erase(label, '&');
    return escaped(label) + ' ' + std::to_string(id);
  }

  std::map<std::string, std::string> shownNow() const {
    std::map<std::string, std::string> shown = {
        {"focus", dialog_->focused() == 0 ? "" : ' ' + nameOf(dialog_->focused())},
        {"Enter presses", ' ' + nameOf(dialog_->defaultButton())},
        {"ended with", dialog_->result() ? ' ' + std::to_string(*dialog_->result()) : ""},
        {"saves", std::string(dialog_->desktop.fileQuestions.size(), '*')},
        {"scroll together", listed(dialog_->linkedLists())},
        {"line of all", rowOfAll() ? listed(*rowOfAll()) : "different ones"}};
    for (const auto& [id, control] : dialog_->controls()) {
      std::string& value = shown[nameOf(id)];
      if (control.text != control.caption) value = ' ' + control.text;
      if (control.checked) value += " checked";
      if (control.marked) value += " marked";
      if (!control.enabled) value += " disabled";
    }
    return shown;
  }

  // What is selected in the lists that scroll together, where it is the same in all of them.
  std::optional<std::vector<int>> rowOfAll() const {
    std::set<std::vector<int>> rows;
    for (const ControlId id : dialog_->linkedLists()) rows.insert(dialog_->selections(id));
    if (rows.empty()) return std::vector<int>();
    return rows.size() == 1 ? std::optional(*rows.begin()) : std::nullopt;
  }

  // Of a list only the lines that went or came, behind "-" and "+", and the selected ones.
  void writeListChanges() {
    for (const auto& [id, control] : dialog_->controls()) {
      std::vector<std::string>& before = lists_[id];
      std::vector<std::string> now;
      std::string selected;
      const auto& linked = dialog_->linkedLists();
      const bool isLinked = rowOfAll() && std::count(linked.begin(), linked.end(), id) > 0;
      for (const auto& line : control.lines) {
        now.push_back(line.text);
        if (line.selected && !isLinked) selected += '|' + line.text;
      }
      const auto first = std::mismatch(before.begin(), before.end(), now.begin(), now.end());
      const auto last = std::mismatch(before.rbegin(), std::reverse_iterator(first.first),
                                      now.rbegin(), std::reverse_iterator(first.second));
      std::string change;
      for (auto line = first.first; line != last.first.base(); ++line) change += " -|" + *line;
      for (auto line = first.second; line != last.second.base(); ++line) change += " +|" + *line;
      if (!change.empty()) write(nameOf(id) + ':' + change);
      before = std::move(now);
      if (std::exchange(selected_[id], selected) != selected) {
        write(nameOf(id) + " selected: " + selected);
      }
    }
  }

  // Puts a change behind the one before it, as long as the line stays readable.
  void write(const std::string& change) {
    constexpr std::size_t kLongest = 118;
    const std::string text = escaped(change);
    if (line_.empty() || line_.size() + text.size() > kLongest) {
      endLine();
      line_ = "  " + text;
    } else {
      line_ += "; " + text;
    }
  }

  void endLine() {
    if (!line_.empty()) played_ += std::exchange(line_, {}) + '\n';
  }

  void writeChanges() {
    for (const Message& message : std::exchange(dialog_->desktop.messages, {})) {
      write("[" + message.caption + "] " + message.text + buttonsOf(message));
      endLine();
    }
    for (const auto& [name, value] : shownNow()) {
      if (std::exchange(shown_[name], value) != value) write(name + ':' + value);
    }
    writeListChanges();
    endLine();
    const auto now = storedNow();
    for (const auto& [subject, line] : stored_) {
      if (!now.contains(subject)) write("- " + line);
    }
    endLine();
    for (const auto& [subject, line] : now) {
      if (!stored_.contains(subject) || stored_[subject] != line) write("+ " + line);
    }
    endLine();
    stored_ = now;
  }

  const SessionWorld& world_;
  const DialogTemplate* template_ = nullptr;
  std::unique_ptr<DialogBehaviour> behaviour_;
  std::optional<MemoryDialog> dialog_;
  std::map<std::string, std::string> shown_;
  std::map<ControlId, std::vector<std::string>> lists_;
  std::map<ControlId, std::string> selected_;
  std::map<std::string, std::string> stored_;
  std::string line_;
  std::string played_;
};

class SessionTest : public testing::Test {
 public:
  SessionTest(std::string file, const SessionWorld& world)
      : file_(std::move(file)), world_(world) {}
  ~SessionTest() override { world_.tidy(); }
  void TestBody() override {
    expectApproved(Stage(world_).play(sourceFile("tests/" + file_)), file_);
  }

 private:
  const std::string file_;
  const SessionWorld& world_;
};

}  // namespace

bool playSessions(const std::string& folder, const SessionWorld& world) {
  for (const auto& entry : std::filesystem::directory_iterator(SOURCE_DIR "/tests/" + folder)) {
    if (entry.path().extension() != ".session") continue;
    const std::string file = folder + '/' + entry.path().filename().string();
    testing::RegisterTest(
        ("Session_" + folder).c_str(), entry.path().stem().c_str(), nullptr, nullptr, __FILE__,
        __LINE__, [file, &world]() -> testing::Test* { return new SessionTest(file, world); });
  }
  return true;
}

}  // namespace scorvane
