// A dialog in memory for tests of dialog behaviour. Its controls come from the program's own
// resource scripts and act as the real ones do: a digits-only field refuses letters, an upper-case
// field converts, a sorted list sorts, a changed text raises its event, disabled controls do
// not answer the operator.
#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/dialog.h"

/// Message boxes and file dialogs, recorded and answered from a script.
struct ScriptedDesktop {
  std::vector<Message> messages;  ///< every box shown so far
  std::deque<Answer> answers;     ///< for boxes that ask; a question without one fails the test
  std::deque<std::optional<std::string>> files;  ///< for file dialogs, nothing = cancelled
  std::vector<FileQuestion> fileQuestions;

  Answer ask(const Message& message);
  std::optional<std::string> chooseFile(const FileQuestion& question);
  /// Text of the last message box ("" when none was shown), and forgets all of them.
  std::string takeMessage();
};

/// A window without a dialog, for operations that only need an owner.
class MemoryWindow : public Window {
 public:
  ScriptedDesktop desktop;
  Answer ask(const Message& message) override { return desktop.ask(message); }
  std::optional<std::string> chooseFile(const FileQuestion& question) override {
    return desktop.chooseFile(question);
  }
  int runDialog(int resourceId, DialogBehaviour& behaviour) override;
};

class MemoryDialog : public Dialog {
 public:
  /// A control as the resource script declares it and as it stands now.
  struct Control {
    enum class Kind { edit, button, checkBox, radioButton, list, combo, text, group };
    Kind kind = Kind::text;
    std::string caption;  ///< text in the resource script, with its "&"
    bool digitsOnly = false;
    bool upperCase = false;
    bool readOnly = false;
    bool sorted = false;
    bool multiple = false;
    bool enabled = true;
    bool checked = false;
    std::string text;
    bool marked = false;  ///< the whole text is selected
    std::vector<std::string> lines;
    std::vector<bool> selected;
    int topLine = 0;
  };

  /// The dialog of a resource id (fails the test when no script declares it), opened at once.
  MemoryDialog(int resourceId, DialogBehaviour& behaviour);

  ScriptedDesktop desktop;

  // What the operator does. An event reaches the behaviour as it would from a real control.
  /// Presses keys one by one, each in the control that then has the focus.
  void keys(std::string_view text);
  /// Goes to a field, marks its text and types over it.
  void fill(ControlId id, std::string_view text);
  /// Goes to a field and pastes over its whole text; pasting passes a digits-only field's filter.
  void paste(ControlId id, std::string_view text);
  /// Presses a button, check box or radio button by mouse; the focus goes there first.
  void click(ControlId id);
  /// Chooses one line of a list or combo box; a multiple-selection list toggles it.
  void choose(ControlId id, int line);
  /// Enter: the focused button, else the default button, else kOkId.
  void pressEnter();
  void pressEscape();
  void pressCloseBox();

  // What the dialog shows.
  [[nodiscard]] const Control& control(ControlId id) const;
  [[nodiscard]] const std::map<ControlId, Control>& controls() const { return controls_; }
  [[nodiscard]] const std::string& caption() const { return caption_; }
  [[nodiscard]] std::vector<std::string> lines(ControlId id) const { return control(id).lines; }
  [[nodiscard]] bool isEnabled(ControlId id) const { return control(id).enabled; }
  [[nodiscard]] ControlId focused() const { return focused_; }
  [[nodiscard]] ControlId defaultButton() const { return defaultButton_; }
  /// The result the dialog ended with; nothing while it is open.
  [[nodiscard]] std::optional<int> result() const { return result_; }

  // Dialog, as the behaviour uses it.
  Answer ask(const Message& message) override { return desktop.ask(message); }
  std::optional<std::string> chooseFile(const FileQuestion& question) override {
    return desktop.chooseFile(question);
  }
  int runDialog(int resourceId, DialogBehaviour& behaviour) override;
  [[nodiscard]] std::string text(ControlId id) const override;
  void setText(ControlId id, std::string_view text) override;
  [[nodiscard]] std::optional<std::uint32_t> number(ControlId id) const override;
  [[nodiscard]] bool isChecked(ControlId id) const override;
  void setChecked(ControlId id, bool checked) override;
  [[nodiscard]] int lineCount(ControlId id) const override;
  [[nodiscard]] std::string line(ControlId id, int index) const override;
  int addLine(ControlId id, std::string_view line) override;
  void insertLine(ControlId id, int index, std::string_view line) override;
  void removeLine(ControlId id, int index) override;
  void clearLines(ControlId id) override;
  void setLines(ControlId id, const std::vector<std::string>& lines) override;
  [[nodiscard]] std::optional<int> selection(ControlId id) const override;
  void select(ControlId id, std::optional<int> index) override;
  [[nodiscard]] std::vector<int> selections(ControlId id) const override;
  void setSelected(ControlId id, int index, bool selected) override;
  [[nodiscard]] int topLine(ControlId id) const override;
  void setTopLine(ControlId id, int index) override;
  void linkScrolling(std::vector<ControlId> ids) override {
    linkedLists_.push_back(std::move(ids));
  }
  void setEnabled(ControlId id, bool enabled) override;
  void focus(ControlId id) override;
  void selectText(ControlId id) override;
  void setDefaultButton(ControlId id) override;
  void end(int result) override { result_ = result; }

 private:
  Control* find(ControlId id);
  [[nodiscard]] const Control* find(ControlId id) const;
  void raise(ControlId id, ControlEvent event);
  void replaceText(ControlId id, std::string text);

  DialogBehaviour& behaviour_;
  std::string caption_;
  std::map<ControlId, Control> controls_;
  std::vector<std::vector<ControlId>> linkedLists_;
  ControlId focused_ = 0;
  ControlId defaultButton_ = 0;
  std::optional<int> result_;
};
