#include "tests/ui/memory_dialog.h"

#include <strings.h>

#include <algorithm>
#include <cctype>

namespace scorvane {

Answer ScriptedDesktop::ask(const Message& message) {
  messages.push_back(message);
  if (message.buttons == Buttons::ok) return Answer::ok;
  if (answers.empty()) {
    ADD_FAILURE() << "nobody answers: " << message.text;
    return message.buttons == Buttons::yesNo ? Answer::no : Answer::cancel;
  }
  const Answer answer = answers.front();
  answers.pop_front();
  return answer;
}

std::optional<std::string> ScriptedDesktop::chooseFile(const FileQuestion& question) {
  fileQuestions.push_back(question);
  if (files.empty()) return std::nullopt;
  std::optional<std::string> file = files.front();
  files.pop_front();
  return file;
}

std::string ScriptedDesktop::takeMessage() {
  std::string text = messages.empty() ? "" : messages.back().text;
  messages.clear();
  return text;
}

MemoryDialog::MemoryDialog(int resourceId, DialogBehaviour& behaviour)
    : behaviour_(behaviour), resource_(std::to_string(resourceId)) {
  const DialogTemplate& declared = dialogTemplates().at(resource_);
  caption_ = declared.caption;
  for (const TemplateControl& control : declared.controls) {
    if (control.id <= 0) continue;  // labels
    const Control fresh{control, control.caption, !control.has("WS_DISABLED"), {}, {}, {}};
    EXPECT_TRUE(controls_.emplace(control.id, fresh).second) << control.id << " twice";
    if (control.statement == "DEFPUSHBUTTON") defaultButton_ = control.id;
  }
  behaviour_.onOpen(*this);
}

const MemoryDialog::Control& MemoryDialog::control(ControlId id) const {
  static Control missing;
  const auto found = controls_.find(id);
  if (found != controls_.end()) return found->second;
  ADD_FAILURE() << "no control " << id << " in dialog " << caption_;
  return missing;
}

void MemoryDialog::raise(ControlId id, ControlEvent event) {
  if (!result_) behaviour_.onEvent(*this, id, event);
}

bool MemoryDialog::takesKeys(ControlId id) const {
  const Control& field = control(id);
  return field.isEdit() && field.enabled && !field.has("ES_READONLY");
}

void MemoryDialog::keys(std::string_view text) {
  for (const char key : text) {
    const Control& field = control(focused_);
    const bool isDigit = std::isdigit(static_cast<unsigned char>(key)) != 0;
    if (!takesKeys(focused_) || (field.has("ES_NUMBER") && !isDigit)) continue;
    setText(focused_, (field.marked ? "" : field.text) + key);
  }
}

void MemoryDialog::fill(ControlId id, std::string_view text) {
  if (!takesKeys(id)) return;
  focus(id);
  selectText(id);
  if (text.empty() && control(id).marked) setText(id, "");
  keys(text);
}

void MemoryDialog::paste(ControlId id, std::string_view text) {
  if (!takesKeys(id)) return;
  focus(id);
  setText(id, text);
}

void MemoryDialog::click(ControlId id) {
  Control& clicked = control(id);
  if (!clicked.enabled) return;
  focus(id);
  if (clicked.statement == "AUTOCHECKBOX") clicked.checked = !clicked.checked;
  if (clicked.statement == "AUTORADIOBUTTON") {
    // A group of radio buttons ends where the next one begins.
    const std::vector<TemplateControl>& all = dialogTemplates().at(resource_).controls;
    auto at = std::find_if(all.begin(), all.end(), [&](const auto& one) { return one.id == id; });
    while (!at->has("WS_GROUP")) --at;
    do {
      if (at->statement == clicked.statement) control(at->id).checked = at->id == id;
    } while (++at != all.end() && !at->has("WS_GROUP"));
  }
  raise(id, ControlEvent::clicked);
}

void MemoryDialog::choose(ControlId id, int line) {
  const bool selected = control(id).lines.at(static_cast<std::size_t>(line)).selected;
  if (!isEnabled(id)) return;
  focus(id);
  if (control(id).has("LBS_MULTIPLESEL")) {
    setSelected(id, line, !selected);
  } else {
    select(id, line);
  }
  raise(id, ControlEvent::selectionChanged);
}

void MemoryDialog::pressEnter() {
  const bool onButton = focused_ != 0 && control(focused_).statement.ends_with("PUSHBUTTON");
  raise(onButton ? focused_ : defaultButton_, ControlEvent::clicked);
}

void MemoryDialog::pressCloseBox() {
  if (!result_) behaviour_.onClose(*this);
}

std::vector<std::string> MemoryDialog::lines(ControlId id) const {
  std::vector<std::string> texts;
  for (const Control::Line& line : control(id).lines) texts.push_back(line.text);
  return texts;
}

// Changing an edit field's text raises its event, whoever changes it.
void MemoryDialog::setText(ControlId id, std::string_view text) {
  Control& field = control(id);
  field.text = text;
  if (field.has("ES_UPPERCASE")) {
    for (char& c : field.text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  }
  field.marked = false;
  if (field.isEdit()) raise(id, ControlEvent::textChanged);
}

int MemoryDialog::lineCount(ControlId id) const {
  return static_cast<int>(control(id).lines.size());
}

std::optional<LineKey> MemoryDialog::lineKey(ControlId id, int index) const {
  if (!hasLine(id, index)) return std::nullopt;
  return control(id).lines[static_cast<std::size_t>(index)].key;
}

// Case does not count in a sorted list.
int MemoryDialog::addLine(ControlId id, const ListLine& line) {
  int index = lineCount(id);
  const auto isBehind = [&](int other) {
    const std::string& text = control(id).lines[static_cast<std::size_t>(other)].text;
    return strcasecmp(text.c_str(), line.text.c_str()) > 0;
  };
  const bool isSorted = control(id).has("LBS_SORT");
  while (isSorted && index > 0 && isBehind(index - 1)) --index;
  insertLine(id, index, line);
  return index;
}

void MemoryDialog::insertLine(ControlId id, int index, const ListLine& line) {
  if (index < 0 || index > lineCount(id)) return;
  auto& lines = control(id).lines;
  lines.insert(lines.begin() + index, Control::Line{line, false});
}

void MemoryDialog::removeLine(ControlId id, int index) {
  auto& lines = control(id).lines;
  if (hasLine(id, index)) lines.erase(lines.begin() + index);
}

void MemoryDialog::setLines(ControlId id, const std::vector<ListLine>& lines) {
  auto& shown = control(id).lines;
  shown.clear();
  for (const ListLine& line : lines) shown.push_back(Control::Line{line, false});
  if (!control(id).has("LBS_SORT")) return;
  std::stable_sort(shown.begin(), shown.end(), [](const auto& one, const auto& other) {
    return strcasecmp(one.text.c_str(), other.text.c_str()) < 0;
  });
}

std::optional<int> MemoryDialog::selection(ControlId id) const {
  const std::vector<int> all = selections(id);
  return all.empty() ? std::nullopt : std::optional<int>(all.front());
}

void MemoryDialog::select(ControlId id, std::optional<int> index) {
  for (Control::Line& line : control(id).lines) line.selected = false;
  setSelected(id, index.value_or(-1), true);
}

std::vector<int> MemoryDialog::selections(ControlId id) const {
  std::vector<int> chosen;
  for (int i = 0; i < lineCount(id); ++i) {
    if (control(id).lines[static_cast<std::size_t>(i)].selected) chosen.push_back(i);
  }
  return chosen;
}

void MemoryDialog::setSelected(ControlId id, int index, bool selected) {
  if (hasLine(id, index)) control(id).lines[static_cast<std::size_t>(index)].selected = selected;
}

void MemoryDialog::focus(ControlId id) {
  if (id == focused_) return;
  const ControlId left = std::exchange(focused_, id);
  if (left != 0 && control(left).isEdit()) raise(left, ControlEvent::lostFocus);
  if (focused_ == id && control(id).isEdit()) raise(id, ControlEvent::gotFocus);
}

}  // namespace scorvane
