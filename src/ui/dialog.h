// One modal dialog as its behaviour sees it: controls by id, and the few events they raise.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "text/number.h"
#include "ui/standard_ids.h"
#include "ui/window.h"

namespace scorvane {

using ControlId = int;

/// Ids that the keyboard sends whether or not the dialog has such a button: Enter without a
/// default push button, and Escape.
inline constexpr ControlId kOkId = IDOK;
inline constexpr ControlId kCancelId = IDCANCEL;

/// What a control can report; only what every desktop can report truthfully.
enum class ControlEvent {
  clicked,           ///< button pressed, by mouse, mnemonic, Enter or Escape
  textChanged,       ///< an edit field's text changed, by the operator or by setText
  selectionChanged,  ///< the operator chose a line of a list or combo box (never select())
  gotFocus,          ///< edit fields only
  lostFocus,         ///< edit fields only
};

/// Identifies what a line of a list shows, such as a contestant's number or a team's name. The
/// behaviour sets it with the line and gets it back, so it never has to read its own captions.
using LineKey = std::variant<std::int32_t, std::string>;

struct ListLine {
  std::string text;
  LineKey key;
};

/// Texts are 8-bit. Line indexes count from 0. An index that a list does not have, or an id that
/// the dialog does not have, is ignored by the setters and reads as empty.
class Dialog : public Window {
 public:
  [[nodiscard]] virtual std::string text(ControlId id) const = 0;
  /// Sets an edit field's or static's text. An edit field reports textChanged.
  virtual void setText(ControlId id, std::string_view text) = 0;
  /// The same with all characters, in UTF-8; for dialogs whose behaviour uses Unicode.
  [[nodiscard]] virtual std::string unicodeText(ControlId id) const { return text(id); }
  virtual void setUnicodeText(ControlId id, std::string_view utf8) { setText(id, utf8); }
  /// The field's text as an unsigned number; nothing when it is empty, holds anything but digits,
  /// with or without blanks around them, or is too large for 32 bits.
  [[nodiscard]] std::optional<std::uint32_t> number(ControlId id) const {
    return unsignedNumber(text(id));
  }

  [[nodiscard]] virtual bool isChecked(ControlId id) const = 0;
  virtual void setChecked(ControlId id, bool checked) = 0;

  // Lists and combo boxes.
  [[nodiscard]] virtual int lineCount(ControlId id) const = 0;
  /// The key of a line; nothing when there is no such line.
  [[nodiscard]] virtual std::optional<LineKey> lineKey(ControlId id, int index) const = 0;
  /// Appends a line, or inserts it where it belongs in a sorted list; returns its index.
  virtual int addLine(ControlId id, const ListLine& line) = 0;
  /// Inserts a line before `index`, even in a sorted list.
  virtual void insertLine(ControlId id, int index, const ListLine& line) = 0;
  virtual void removeLine(ControlId id, int index) = 0;
  virtual void clearLines(ControlId id) = 0;
  /// Replaces all lines at once; for lists that can be long.
  virtual void setLines(ControlId id, const std::vector<ListLine>& lines) = 0;
  /// The same with lines whose keys are their positions, from 0.
  void setLines(ControlId id, const std::vector<std::string>& lines) {
    std::vector<ListLine> keyed;
    keyed.reserve(lines.size());
    for (const std::string& line : lines) {
      keyed.push_back({line, static_cast<std::int32_t>(keyed.size())});
    }
    setLines(id, keyed);
  }
  /// The selected line of a single-selection list or combo box.
  [[nodiscard]] virtual std::optional<int> selection(ControlId id) const = 0;
  /// The key of the selected line, of the kind that the lines were given; nothing without a
  /// selection.
  [[nodiscard]] std::optional<std::int32_t> selectedNumber(ControlId id) const {
    return selectedKey<std::int32_t>(id);
  }
  [[nodiscard]] std::optional<std::string> selectedText(ControlId id) const {
    return selectedKey<std::string>(id);
  }
  /// Selects a line, or none. Raises no event.
  virtual void select(ControlId id, std::optional<int> index) = 0;
  /// Selects the first line with a key, or none when there is no such line. Raises no event.
  void selectKey(ControlId id, const LineKey& key) {
    int index = 0;
    while (index < lineCount(id) && lineKey(id, index) != key) ++index;
    select(id, index);
  }
  /// Whether the operator is moving through a list by its keys (arrows, Page, Home, End): what
  /// answers the selection then leaves the focus in the list.
  [[nodiscard]] virtual bool isMovingThroughLines() const = 0;
  /// The selected lines of a multiple-selection list, ascending.
  [[nodiscard]] virtual std::vector<int> selections(ControlId id) const = 0;
  virtual void setSelected(ControlId id, int index, bool selected) = 0;
  /// Joins lists to the columns of one table: scrolling one of them, by
  /// mouse, wheel or keyboard, scrolls the others to the same first line.
  virtual void linkScrolling(std::vector<ControlId> ids) = 0;

  virtual void setEnabled(ControlId id, bool enabled) = 0;
  virtual void focus(ControlId id) = 0;
  /// Marks the whole text of an edit field, so that the next key replaces it.
  virtual void selectText(ControlId id) = 0;
  /// Makes a button the one that Enter presses.
  virtual void setDefaultButton(ControlId id) = 0;
  /// Closes the dialog once this event is handled; runDialog returns `result`.
  virtual void end(int result) = 0;

  void setNumber(ControlId id, std::int64_t value) { setText(id, std::to_string(value)); }

 private:
  template <typename Key>
  [[nodiscard]] std::optional<Key> selectedKey(ControlId id) const {
    const std::optional<int> index = selection(id);
    const std::optional<LineKey> key = index ? lineKey(id, *index) : std::nullopt;
    if (!key) return std::nullopt;
    return std::get<Key>(*key);
  }
};

/// What one dialog does. It holds the dialog's own state and sees no window handle.
class DialogBehaviour {
 public:
  DialogBehaviour() = default;
  DialogBehaviour(const DialogBehaviour&) = delete;
  DialogBehaviour& operator=(const DialogBehaviour&) = delete;
  virtual ~DialogBehaviour() = default;

  /// The controls exist and are empty; the dialog is about to be shown.
  virtual void onOpen(Dialog& dialog) = 0;
  /// A control reports something. Escape and a missing default button report kCancelId and kOkId
  /// clicked; ids that a dialog does not act on are to be ignored.
  virtual void onEvent(Dialog& dialog, ControlId id, ControlEvent event) = 0;
  /// Whether the fields of the dialog take characters that 8-bit text lacks.
  [[nodiscard]] virtual bool usesUnicode() const { return false; }
  /// The operator pressed the close box; the behaviour ends the dialog, or not.
  virtual void onClose(Dialog& dialog) = 0;
};

}  // namespace scorvane
