// A dialog in memory for tests of dialog behaviour. Its controls come from the program's own
// resource scripts and act as the real ones do: a digits-only field refuses letters, an upper-case
// field converts, a sorted list sorts, a changed text raises its event, disabled controls do
// not answer the operator.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/ui/dialog_template.h"
#include "ui/dialog.h"

namespace scorvane {

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

/// A port to the desktop whose boxes are scripted.
template <typename Port>
class Scripted : public Port {
 public:
  ScriptedDesktop desktop;

  Answer ask(const Message& message) override { return desktop.ask(message); }
  std::optional<std::string> chooseFile(const FileQuestion& question) override {
    return desktop.chooseFile(question);
  }
};

/// A window without a dialog, for operations that only need an owner.
using MemoryWindow = Scripted<Window>;

class MemoryDialog : public Scripted<Dialog> {
 public:
  /// A control as the resource script declares it and as it stands now.
  struct Control : TemplateControl {
    std::string text;
    bool enabled = true;
    bool checked = false;
    bool marked = false;  ///< the whole text is selected
    struct Line : ListLine {
      bool selected = false;
    };
    std::vector<Line> lines;

    [[nodiscard]] bool isEdit() const { return statement == "EDITTEXT"; }
    [[nodiscard]] bool isList() const { return statement == "LISTBOX" || statement == "COMBOBOX"; }
  };

  /// The dialog of a resource id, opened at once.
  MemoryDialog(int resourceId, DialogBehaviour& behaviour);

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
  /// Goes to a list and by its arrow keys to a line.
  void moveTo(ControlId id, int line) {
    isMoving_ = true;
    choose(id, line);
    isMoving_ = false;
  }
  /// Enter: the focused button, else the default button, else kOkId.
  void pressEnter();
  void pressEscape() { raise(kCancelId, ControlEvent::clicked); }
  void pressCloseBox();

  // What the dialog shows.
  [[nodiscard]] const std::map<ControlId, Control>& controls() const { return controls_; }
  [[nodiscard]] const std::string& caption() const { return caption_; }
  [[nodiscard]] std::vector<std::string> lines(ControlId id) const;
  [[nodiscard]] bool isEnabled(ControlId id) const { return control(id).enabled; }
  [[nodiscard]] ControlId focused() const { return focused_; }
  [[nodiscard]] ControlId defaultButton() const { return defaultButton_; }
  /// The lists that scroll together.
  [[nodiscard]] const std::vector<ControlId>& linkedLists() const { return linkedLists_; }
  /// The result the dialog ended with; nothing while it is open.
  [[nodiscard]] std::optional<int> result() const { return result_; }

  // Dialog, as the behaviour uses it.
  [[nodiscard]] std::string text(ControlId id) const override { return control(id).text; }
  void setText(ControlId id, std::string_view text) override;
  [[nodiscard]] bool isChecked(ControlId id) const override { return control(id).checked; }
  void setChecked(ControlId id, bool checked) override { control(id).checked = checked; }
  [[nodiscard]] int lineCount(ControlId id) const override;
  [[nodiscard]] std::optional<LineKey> lineKey(ControlId id, int index) const override;
  int addLine(ControlId id, const ListLine& line) override;
  void insertLine(ControlId id, int index, const ListLine& line) override;
  void removeLine(ControlId id, int index) override;
  void clearLines(ControlId id) override { control(id).lines.clear(); }
  using Dialog::setLines;
  void setLines(ControlId id, const std::vector<ListLine>& lines) override;
  [[nodiscard]] std::optional<int> selection(ControlId id) const override;
  void select(ControlId id, std::optional<int> index) override;
  [[nodiscard]] bool isMovingThroughLines() const override { return isMoving_; }
  [[nodiscard]] std::vector<int> selections(ControlId id) const override;
  void setSelected(ControlId id, int index, bool selected) override;
  void linkScrolling(std::vector<ControlId> ids) override { linkedLists_ = std::move(ids); }
  void setEnabled(ControlId id, bool enabled) override { control(id).enabled = enabled; }
  void focus(ControlId id) override;
  void selectText(ControlId id) override { control(id).marked = !text(id).empty(); }
  void setDefaultButton(ControlId id) override { defaultButton_ = control(id).id; }
  void end(int result) override { result_ = result; }

 private:
  // An id that the dialog does not have fails the test.
  [[nodiscard]] const Control& control(ControlId id) const;
  Control& control(ControlId id) { return const_cast<Control&>(std::as_const(*this).control(id)); }
  [[nodiscard]] bool hasLine(ControlId id, int i) const { return i >= 0 && i < lineCount(id); }
  [[nodiscard]] bool takesKeys(ControlId id) const;
  void raise(ControlId id, ControlEvent event);

  DialogBehaviour& behaviour_;
  const std::string resource_;
  std::string caption_;
  std::map<ControlId, Control> controls_;
  std::vector<ControlId> linkedLists_;
  ControlId focused_ = 0;
  ControlId defaultButton_ = kOkId;
  std::optional<int> result_;
  bool isMoving_ = false;
};

}  // namespace scorvane
