#include "tests/ui/recorded_dialog.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <utility>

#include "storage/contest_commands.h"
#include "storage/contest_writer.h"
#include "text/format.h"
#include "view/report_text.h"

namespace {

// On one line, in characters that everything can show.
std::string onOneLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    const bool isPlain = c >= ' ' && c <= '~';
    line += c == '\n'   ? "\\n"
            : c == '\t' ? "\\t"
            : isPlain   ? std::string(1, c)
                        : formatText("\\x%02hhX", c);
  }
  return line;
}

template <typename Column>
std::string listed(const Column& column) {
  std::ostringstream list;
  for (const auto& element : column) list << '|' << element;
  return list.str();
}

// The lines of the file that the contest would be saved to, and what no file holds.
std::multiset<std::string> storedNow(const Contest& contest) {
  const JudgingClasses& c = contest.classes;
  std::multiset<std::string> stored = {
      "report " + reportText(), "group letters " + listed(contest.groupLetters),
      "classes " + listed(c.className) + ' ' + listed(c.officialLetter) + ' ' +
          listed(c.reasonsFlag) + ' ' + listed(c.questionsFlag) + ' ' + listed(c.cut1) + ' ' +
          listed(c.cut2) + ' ' + listed(c.cut3) + ' ' + listed(c.categoryIndex),
      "next number " + std::to_string(contest.settings.nextContestantNum) + " in group " +
          contest.settings.nextGroupLetter};
  for (const auto& [number, letter] : contest.contestantGroup) {
    stored.insert(std::to_string(number) + " in group " + letter);
  }
  for (const auto& [cell, number] : contest.reasonsOrder.cells()) {
    stored.insert(formatText("%d in reasons group %d, row %d", number, cell.first, cell.second));
  }
  for (const auto& [number, records] : contest.scores) {
    stored.insert(std::to_string(number) + " with records: " + std::to_string(records.size()));
  }
  std::istringstream file(writeContest(contest));
  for (std::string line; std::getline(file, line);) {
    const bool isCount = line.find_first_not_of("0123456789\r") == std::string::npos;
    const bool isBlank = line.ends_with("\t \t0\t0\t0\r");
    if (!isCount && !isBlank) stored.insert(line.substr(0, line.size() - 1));
  }
  return stored;
}

}  // namespace

RecordedDialog::RecordedDialog(const Contest& contest, int resourceId, DialogBehaviour& behaviour)
    : MemoryDialog((reportText() = "a report", currentFileName().clear(),
                    currentContest() = contest, resourceId),
                   behaviour),
      template_(dialogTemplates().at(std::to_string(resourceId))),
      stored_(storedNow(contest)) {
  did("open", 0, caption());
}

std::string RecordedDialog::nameOf(ControlId id) const {
  std::string label;
  for (const TemplateControl& control : template_.controls) {
    if (!control.caption.empty()) label = control.caption;
    if (control.id == id) break;
  }
  std::erase(label, '&');
  return label + ' ' + std::to_string(id);
}

std::map<std::string, std::string> RecordedDialog::shownNow() const {
  std::map<std::string, std::string> shown = {
      {"focus", focused() == 0 ? "" : nameOf(focused())},
      {"Enter presses", nameOf(defaultButton())},
      {"ended with", result() ? std::to_string(*result()) : ""},
      {"saves", std::string(desktop.fileQuestions.size(), '*')}};
  for (const auto& [id, control] : controls()) {
    std::string& value = shown[nameOf(id)];
    if (control.text != control.caption) value = control.text;
    for (const auto& [line, selected] : control.lines) value += (selected ? "|>" : "|") + line;
    if (control.checked) value += " checked";
    if (control.marked) value += " marked";
    if (!control.enabled) value += " disabled";
  }
  return shown;
}

void RecordedDialog::did(const std::string& what, ControlId where, std::string_view text) {
  const auto write = [this](const std::string& line) { session_ += onOneLine(line) + '\n'; };
  write(what + (where == 0 ? "" : ' ' + nameOf(where)) +
        (text.empty() ? "" : ": " + std::string(text)));
  for (const Message& message : std::exchange(desktop.messages, {})) {
    const char* proposed = message.buttons == Buttons::ok            ? ""
                           : message.defaultAnswer == Answer::cancel ? " (Enter cancels)"
                                                                     : " (Enter agrees)";
    write("  [" + message.caption + "] " + message.text + proposed);
  }
  for (const auto& [name, value] : shownNow()) {
    if (std::exchange(shown_[name], value) != value) write("  " + name + ": " + value);
  }
  const auto now = storedNow(currentContest());
  const auto writeOnlyIn = [&](const auto& some, const auto& others, const char* mark) {
    std::vector<std::string> lines;
    std::set_difference(some.begin(), some.end(), others.begin(), others.end(),
                        std::back_inserter(lines));
    for (const std::string& line : lines) write(mark + line);
  };
  writeOnlyIn(stored_, now, "  - ");
  writeOnlyIn(now, stored_, "  + ");
  stored_ = now;
}
