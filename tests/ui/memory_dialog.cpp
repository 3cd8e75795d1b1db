#include "tests/ui/memory_dialog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "tests/ui/dialog_template.h"
#include "ui/unsigned_number.h"

namespace {

using Control = MemoryDialog::Control;
using Kind = Control::Kind;

Kind kindOf(const TemplateControl& control) {
  static const std::map<std::string, Kind> kinds = {
      {"EDITTEXT", Kind::edit},     {"Edit", Kind::edit},
      {"LISTBOX", Kind::list},      {"ListBox", Kind::list},
      {"COMBOBOX", Kind::combo},    {"ComboBox", Kind::combo},
      {"PUSHBUTTON", Kind::button}, {"DEFPUSHBUTTON", Kind::button},
      {"CHECKBOX", Kind::checkBox}, {"AUTOCHECKBOX", Kind::checkBox},
      {"GROUPBOX", Kind::group},    {"AUTORADIOBUTTON", Kind::radioButton}};
  const auto found = kinds.find(control.statement);
  if (found != kinds.end()) return found->second;
  if (control.statement != "Button") return Kind::text;
  if (control.styles.find("RADIOBUTTON") != std::string::npos) return Kind::radioButton;
  return control.styles.find("CHECKBOX") != std::string::npos ? Kind::checkBox : Kind::button;
}

Control controlOf(const TemplateControl& declared) {
  const auto has = [&](const char* style) {
    return declared.styles.find(style) != std::string::npos;
  };
  Control control;
  control.kind = kindOf(declared);
  control.caption = declared.caption;
  control.digitsOnly = has("ES_NUMBER");
  control.upperCase = has("ES_UPPERCASE");
  control.readOnly = has("ES_READONLY");
  control.sorted = (has("LBS_SORT") && !has("NOT LBS_SORT")) || has("CBS_SORT");
  control.multiple = has("LBS_MULTIPLESEL") || has("LBS_EXTENDEDSEL");
  control.enabled = !has("WS_DISABLED");
  if (control.kind == Kind::text) control.text = declared.caption;
  return control;
}

// Order of a sorted list box: case does not count, as in the real one.
bool sortsBefore(const std::string& a, const std::string& b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return std::tolower(static_cast<unsigned char>(x)) <
           std::tolower(static_cast<unsigned char>(y));
  });
}

bool isLine(const Control* control, int index) {
  return control != nullptr && index >= 0 &&
         static_cast<std::size_t>(index) < control->lines.size();
}

std::string upperCased(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

}  // namespace

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

int MemoryWindow::runDialog(int resourceId, DialogBehaviour& /*behaviour*/) {
  ADD_FAILURE() << "unexpected dialog " << resourceId;
  return 0;
}

MemoryDialog::MemoryDialog(int resourceId, DialogBehaviour& behaviour) : behaviour_(behaviour) {
  const DialogTemplate* declared = findDialogTemplate(resourceId);
  if (declared == nullptr) {
    ADD_FAILURE() << "no dialog template " << resourceId;
    return;
  }
  caption_ = declared->caption;
  for (const TemplateControl& control : declared->controls) {
    if (control.id <= 0) continue;  // labels
    EXPECT_TRUE(controls_.emplace(control.id, controlOf(control)).second)
        << "control " << control.id << " twice in dialog " << resourceId;
    if (control.statement == "DEFPUSHBUTTON" ||
        control.styles.find("BS_DEFPUSHBUTTON") != std::string::npos) {
      defaultButton_ = control.id;
    }
  }
  behaviour_.opened(*this);
}

int MemoryDialog::runDialog(int resourceId, DialogBehaviour& /*behaviour*/) {
  ADD_FAILURE() << "unexpected dialog " << resourceId;
  return 0;
}

Control* MemoryDialog::find(ControlId id) {
  const auto found = controls_.find(id);
  if (found == controls_.end()) {
    ADD_FAILURE() << "no control " << id << " in dialog " << caption_;
    return nullptr;
  }
  return &found->second;
}

const Control* MemoryDialog::find(ControlId id) const {
  return const_cast<MemoryDialog*>(this)->find(id);
}

const Control& MemoryDialog::control(ControlId id) const {
  static const Control missing;
  const Control* found = find(id);
  return found == nullptr ? missing : *found;
}

void MemoryDialog::raise(ControlId id, ControlEvent event) {
  if (!result_) behaviour_.onEvent(*this, id, event);
}

// Changing an edit field's text raises its event, whoever changes it.
void MemoryDialog::replaceText(ControlId id, std::string text) {
  Control* control = find(id);
  if (control == nullptr) return;
  control->text = control->upperCase ? upperCased(std::move(text)) : std::move(text);
  control->marked = false;
  if (control->kind == Kind::edit) raise(id, ControlEvent::textChanged);
}

void MemoryDialog::keys(std::string_view text) {
  for (const char key : text) {
    const Control* control = find(focused_);
    if (control == nullptr || control->kind != Kind::edit || control->readOnly) continue;
    if (!control->enabled) continue;
    if (control->digitsOnly && std::isdigit(static_cast<unsigned char>(key)) == 0) continue;
    replaceText(focused_, (control->marked ? "" : control->text) + key);
  }
}

void MemoryDialog::fill(ControlId id, std::string_view text) {
  const Control* target = find(id);
  if (target == nullptr || !target->enabled || target->readOnly) return;
  focus(id);
  if (text.empty()) {
    if (!target->text.empty()) replaceText(id, "");
    return;
  }
  selectText(id);
  for (const char key : text) {
    // Typing may move the focus on; what is left then goes where the focus stands.
    keys({&key, 1});
  }
}

void MemoryDialog::paste(ControlId id, std::string_view text) {
  const Control* target = find(id);
  if (target == nullptr || !target->enabled || target->readOnly) return;
  focus(id);
  replaceText(id, std::string(text));
}

void MemoryDialog::click(ControlId id) {
  Control* control = find(id);
  if (control == nullptr || !control->enabled) return;
  focus(id);
  if (control->kind == Kind::checkBox) control->checked = !control->checked;
  if (control->kind == Kind::radioButton) {
    for (auto& [other, state] : controls_) {
      if (state.kind == Kind::radioButton) state.checked = other == id;
    }
  }
  raise(id, ControlEvent::clicked);
}

void MemoryDialog::choose(ControlId id, int line) {
  Control* control = find(id);
  if (!isLine(control, line)) {
    ADD_FAILURE() << "no line " << line << " in list " << id;
    return;
  }
  if (!control->enabled) return;
  focus(id);
  if (control->multiple) {
    const auto index = static_cast<std::size_t>(line);
    control->selected[index] = !control->selected[index];
  } else {
    select(id, line);
  }
  raise(id, ControlEvent::selectionChanged);
}

void MemoryDialog::pressEnter() {
  const auto focusedControl = controls_.find(focused_);
  const bool onButton =
      focusedControl != controls_.end() && focusedControl->second.kind == Kind::button;
  const ControlId pressed = onButton ? focused_ : defaultButton_ != 0 ? defaultButton_ : kOkId;
  const auto button = controls_.find(pressed);
  if (button != controls_.end() && !button->second.enabled) return;
  raise(pressed, ControlEvent::clicked);
}

void MemoryDialog::pressEscape() {
  raise(kCancelId, ControlEvent::clicked);
}

void MemoryDialog::pressCloseBox() {
  if (!result_) behaviour_.closed(*this);
}

std::string MemoryDialog::text(ControlId id) const {
  return control(id).text;
}

void MemoryDialog::setText(ControlId id, std::string_view text) {
  replaceText(id, std::string(text));
}

std::optional<std::uint32_t> MemoryDialog::number(ControlId id) const {
  return unsignedNumber(text(id));
}

bool MemoryDialog::isChecked(ControlId id) const {
  return control(id).checked;
}

void MemoryDialog::setChecked(ControlId id, bool checked) {
  if (Control* control = find(id)) control->checked = checked;
}

int MemoryDialog::lineCount(ControlId id) const {
  return static_cast<int>(control(id).lines.size());
}

std::string MemoryDialog::line(ControlId id, int index) const {
  const Control* control = find(id);
  return isLine(control, index) ? control->lines[static_cast<std::size_t>(index)] : "";
}

int MemoryDialog::addLine(ControlId id, std::string_view line) {
  const Control* control = find(id);
  if (control == nullptr) return -1;
  const std::string text(line);
  auto place = control->lines.end();
  if (control->sorted) {
    place = std::upper_bound(control->lines.begin(), control->lines.end(), text, sortsBefore);
  }
  const int index = static_cast<int>(place - control->lines.begin());
  insertLine(id, index, line);
  return index;
}

void MemoryDialog::insertLine(ControlId id, int index, std::string_view line) {
  Control* control = find(id);
  if (control == nullptr || index < 0 || index > lineCount(id)) return;
  control->lines.emplace(control->lines.begin() + index, line);
  control->selected.insert(control->selected.begin() + index, false);
}

void MemoryDialog::removeLine(ControlId id, int index) {
  Control* control = find(id);
  if (!isLine(control, index)) return;
  control->lines.erase(control->lines.begin() + index);
  control->selected.erase(control->selected.begin() + index);
}

void MemoryDialog::clearLines(ControlId id) {
  Control* control = find(id);
  if (control == nullptr) return;
  control->lines.clear();
  control->selected.clear();
}

void MemoryDialog::setLines(ControlId id, const std::vector<std::string>& lines) {
  Control* control = find(id);
  if (control == nullptr) return;
  control->lines = lines;
  if (control->sorted) std::stable_sort(control->lines.begin(), control->lines.end(), sortsBefore);
  control->selected.assign(lines.size(), false);
}

std::optional<int> MemoryDialog::selection(ControlId id) const {
  const std::vector<int> all = selections(id);
  return all.empty() ? std::nullopt : std::optional<int>(all.front());
}

void MemoryDialog::select(ControlId id, std::optional<int> index) {
  Control* control = find(id);
  if (control == nullptr) return;
  std::fill(control->selected.begin(), control->selected.end(), false);
  if (index && isLine(control, *index)) control->selected[static_cast<std::size_t>(*index)] = true;
}

std::vector<int> MemoryDialog::selections(ControlId id) const {
  std::vector<int> chosen;
  const Control* control = find(id);
  for (int i = 0; isLine(control, i); ++i) {
    if (control->selected[static_cast<std::size_t>(i)]) chosen.push_back(i);
  }
  return chosen;
}

void MemoryDialog::setSelected(ControlId id, int index, bool selected) {
  Control* control = find(id);
  if (isLine(control, index)) control->selected[static_cast<std::size_t>(index)] = selected;
}

int MemoryDialog::topLine(ControlId id) const {
  return control(id).topLine;
}

void MemoryDialog::setTopLine(ControlId id, int index) {
  Control* control = find(id);
  if (!isLine(control, index)) return;
  control->topLine = index;
  for (const std::vector<ControlId>& linked : linkedLists_) {
    if (std::find(linked.begin(), linked.end(), id) == linked.end()) continue;
    for (const ControlId other : linked) {
      Control* neighbour = find(other);
      if (isLine(neighbour, index)) neighbour->topLine = index;
    }
  }
}

void MemoryDialog::setEnabled(ControlId id, bool enabled) {
  if (Control* control = find(id)) control->enabled = enabled;
}

void MemoryDialog::focus(ControlId id) {
  if (id == focused_ || find(id) == nullptr) return;
  const ControlId left = focused_;
  focused_ = id;
  const auto isEdit = [this](ControlId control) {
    const auto found = controls_.find(control);
    return found != controls_.end() && found->second.kind == Kind::edit;
  };
  if (isEdit(left)) raise(left, ControlEvent::lostFocus);
  if (isEdit(id) && focused_ == id) raise(id, ControlEvent::gotFocus);
}

void MemoryDialog::selectText(ControlId id) {
  if (Control* control = find(id)) control->marked = !control->text.empty();
}

void MemoryDialog::setDefaultButton(ControlId id) {
  if (find(id) != nullptr) defaultButton_ = id;
}
