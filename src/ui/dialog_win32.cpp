#include "ui/dialog_win32.h"

#include <windows.h>
// The common controls need windows.h before them.
#include <commctrl.h>

#include <algorithm>
#include <map>
#include <utility>

#include "ui/control_kind_win32.h"
#include "ui/fixed_font_win32.h"
#include "ui/large_field_win32.h"
#include "ui/typed_choice_win32.h"

namespace scorvane {

namespace {

LPARAM textParameter(const std::string& text) {
  return reinterpret_cast<LPARAM>(text.c_str());
}

// One modal dialog: passes its messages on to the behaviour, and what the behaviour asks for on to
// the controls.
class NativeDialog final : public Dialog {
 public:
  explicit NativeDialog(DialogBehaviour& behaviour) : behaviour_(behaviour) {}

  // Messages. Each returns what the dialog procedure is to return.
  INT_PTR initialize(HWND window);
  INT_PTR command(ControlId id, WORD notification);
  INT_PTR closeBox();
  void linkedListMoved(HWND list);
  /// The list that takes the mouse wheel for `list`: of linked ones, the one with a scroll bar,
  /// since a list without one ignores the wheel.
  [[nodiscard]] HWND scrollerFor(HWND list) const;

  Answer ask(const Message& message) override { return askOver(window_, message); }
  std::optional<std::string> chooseFile(const FileQuestion& question) override {
    return chooseFileOver(window_, question);
  }
  [[nodiscard]] std::string text(ControlId id) const override;
  void setText(ControlId id, std::string_view text) override;
  [[nodiscard]] std::string unicodeText(ControlId id) const override;
  void setUnicodeText(ControlId id, std::string_view utf8) override;
  [[nodiscard]] bool isChecked(ControlId id) const override;
  void setChecked(ControlId id, bool checked) override;
  [[nodiscard]] int lineCount(ControlId id) const override;
  [[nodiscard]] std::optional<LineKey> lineKey(ControlId id, int index) const override;
  int addLine(ControlId id, const ListLine& line) override;
  void insertLine(ControlId id, int index, const ListLine& line) override;
  void removeLine(ControlId id, int index) override;
  void clearLines(ControlId id) override;
  using Dialog::setLines;
  void setLines(ControlId id, const std::vector<ListLine>& lines) override;
  [[nodiscard]] std::optional<int> selection(ControlId id) const override;
  void select(ControlId id, std::optional<int> index) override;
  [[nodiscard]] bool isMovingThroughLines() const override;
  [[nodiscard]] std::vector<int> selections(ControlId id) const override;
  void setSelected(ControlId id, int index, bool selected) override;
  void linkScrolling(std::vector<ControlId> ids) override;
  void setEnabled(ControlId id, bool enabled) override;
  void focus(ControlId id) override;
  void selectText(ControlId id) override;
  void setDefaultButton(ControlId id) override;
  void end(int result) override;

 private:
  [[nodiscard]] HWND control(ControlId id) const { return GetDlgItem(window_, id); }
  LRESULT send(ControlId id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  [[nodiscard]] const LineMessages& lineMessages(ControlId id) const;
  [[nodiscard]] bool hasLine(ControlId id, int index) const;
  void keepKey(ControlId id, LRESULT index, const LineKey& key);
  void widenFor(ControlId id, const std::string& line);

  DialogBehaviour& behaviour_;
  HWND window_ = nullptr;
  bool focused_ = false;
  bool ended_ = false;
  GraphicsObject columnFont_;
  std::vector<std::vector<HWND>> linkedLists_;
  /// Of all lines of a list since it was cleared; each line holds the position of its own.
  std::map<ControlId, std::vector<LineKey>> keys_;
  std::map<ControlId, std::size_t> longest_;  ///< the longest line so far, in characters
};

// The timer by which a list scrolls while the mouse is dragged out of it.
constexpr UINT kListTimer = 0x0118;

// Keeps lists together that scroll as one: after anything that can scroll a list, the others take
// over its first line.
LRESULT CALLBACK linkedListProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam,
                                     UINT_PTR /*id*/, DWORD_PTR data) {
  auto* dialog = reinterpret_cast<NativeDialog*>(data);
  if (message == WM_MOUSEWHEEL) {
    HWND scroller = dialog->scrollerFor(list);
    if (scroller != list) return SendMessageA(scroller, message, wParam, lParam);
  }
  const LRESULT result = DefSubclassProc(list, message, wParam, lParam);
  switch (message) {
    case WM_VSCROLL:
    case WM_MOUSEWHEEL:
    case WM_KEYDOWN:
    case WM_CHAR:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_MOUSEMOVE:
    case kListTimer:
      dialog->linkedListMoved(list);
      break;
    default:
      break;
  }
  return result;
}

INT_PTR NativeDialog::initialize(HWND window) {
  window_ = window;
  columnFont_ = useColumnFont(window);
  prepareLargeFields(window);
  enableTypeAhead(window);
  behaviour_.onOpen(*this);
  drawDefaultButtons(window_);
  // FALSE keeps the focus where the behaviour put it.
  return focused_ ? FALSE : TRUE;
}

INT_PTR NativeDialog::command(ControlId id, WORD notification) {
  if (ended_) return FALSE;
  HWND sender = control(id);
  if (sender == nullptr) {
    // Enter and Escape send their ids whether or not there is such a button.
    if (notification != BN_CLICKED) return FALSE;
    behaviour_.onEvent(*this, id, ControlEvent::clicked);
    return TRUE;
  }
  const std::optional<ControlEvent> event = controlEvent(sender, notification);
  if (!event) return FALSE;
  behaviour_.onEvent(*this, id, *event);
  return TRUE;
}

INT_PTR NativeDialog::closeBox() {
  if (!ended_) behaviour_.onClose(*this);
  return TRUE;
}

LRESULT NativeDialog::send(ControlId id, UINT message, WPARAM wParam, LPARAM lParam) const {
  return SendDlgItemMessageA(window_, id, message, wParam, lParam);
}

const LineMessages& NativeDialog::lineMessages(ControlId id) const {
  return lineMessagesOf(control(id));
}

bool NativeDialog::hasLine(ControlId id, int index) const {
  return index >= 0 && index < lineCount(id);
}

std::string NativeDialog::text(ControlId id) const {
  HWND field = control(id);
  if (field == nullptr) return {};
  std::string text(static_cast<std::size_t>(GetWindowTextLengthA(field)), '\0');
  const int length = GetWindowTextA(field, text.data(), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(std::max(length, 0)));
  return text;
}

void NativeDialog::setText(ControlId id, std::string_view text) {
  HWND field = control(id);
  if (field == nullptr) return;
  SetWindowTextA(field, std::string(text).c_str());
}

std::string NativeDialog::unicodeText(ControlId id) const {
  return unicodeTextOf(control(id));
}

void NativeDialog::setUnicodeText(ControlId id, std::string_view utf8) {
  setUnicodeTextOf(control(id), utf8);
  // Fields of several lines do not tell of this.
  if (isLargeField(control(id))) behaviour_.onEvent(*this, id, ControlEvent::textChanged);
}

bool NativeDialog::isChecked(ControlId id) const {
  return send(id, BM_GETCHECK) == BST_CHECKED;
}

void NativeDialog::setChecked(ControlId id, bool checked) {
  send(id, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED);
}

int NativeDialog::lineCount(ControlId id) const {
  return std::max(0, static_cast<int>(send(id, lineMessages(id).count)));
}

std::optional<LineKey> NativeDialog::lineKey(ControlId id, int index) const {
  if (!hasLine(id, index)) return std::nullopt;
  return keys_.at(id).at(
      static_cast<std::size_t>(send(id, lineMessages(id).key, static_cast<WPARAM>(index))));
}

void NativeDialog::keepKey(ControlId id, LRESULT index, const LineKey& key) {
  if (index < 0) return;
  std::vector<LineKey>& keys = keys_[id];
  send(id, lineMessages(id).setKey, static_cast<WPARAM>(index), static_cast<LPARAM>(keys.size()));
  keys.push_back(key);
}

void NativeDialog::widenFor(ControlId id, const std::string& line) {
  std::size_t& longest = longest_[id];
  if (line.size() <= longest) return;
  longest = line.size();
  const auto width = static_cast<std::size_t>(characterWidth(columnFont_));
  send(id, LB_SETHORIZONTALEXTENT, (longest + 1) * width);
}

int NativeDialog::addLine(ControlId id, const ListLine& line) {
  const LRESULT index = send(id, lineMessages(id).add, 0, textParameter(line.text));
  keepKey(id, index, line.key);
  widenFor(id, line.text);
  return static_cast<int>(index);
}

void NativeDialog::insertLine(ControlId id, int index, const ListLine& line) {
  if (index < 0 || index > lineCount(id)) return;
  keepKey(id,
          send(id, lineMessages(id).insert, static_cast<WPARAM>(index), textParameter(line.text)),
          line.key);
  widenFor(id, line.text);
}

void NativeDialog::removeLine(ControlId id, int index) {
  if (hasLine(id, index)) send(id, lineMessages(id).remove, static_cast<WPARAM>(index));
}

void NativeDialog::clearLines(ControlId id) {
  send(id, lineMessages(id).clear);
  keys_[id].clear();
  longest_[id] = 0;
}

void NativeDialog::setLines(ControlId id, const std::vector<ListLine>& lines) {
  const LineMessages& messages = lineMessages(id);
  std::size_t bytes = 0;
  for (const ListLine& line : lines) bytes += line.text.size() + 1;
  send(id, WM_SETREDRAW, FALSE);
  clearLines(id);
  send(id, messages.reserve, lines.size(), static_cast<LPARAM>(bytes));
  for (const ListLine& line : lines) addLine(id, line);
  send(id, WM_SETREDRAW, TRUE);
  InvalidateRect(control(id), nullptr, TRUE);
}

std::optional<int> NativeDialog::selection(ControlId id) const {
  const LRESULT index = send(id, lineMessages(id).selection);
  if (!hasLine(id, static_cast<int>(index))) return std::nullopt;
  return static_cast<int>(index);
}

void NativeDialog::select(ControlId id, std::optional<int> index) {
  const int line = index && hasLine(id, *index) ? *index : -1;
  send(id, lineMessages(id).select, static_cast<WPARAM>(line));
}

bool NativeDialog::isMovingThroughLines() const {
  return isMovedByKeys(GetFocus());
}

std::vector<int> NativeDialog::selections(ControlId id) const {
  std::vector<int> chosen;
  for (int i = 0; i < lineCount(id); ++i) {
    if (send(id, LB_GETSEL, static_cast<WPARAM>(i)) > 0) chosen.push_back(i);
  }
  return chosen;
}

void NativeDialog::setSelected(ControlId id, int index, bool selected) {
  if (!hasLine(id, index)) return;
  send(id, LB_SETSEL, selected ? TRUE : FALSE, index);
}

void NativeDialog::linkScrolling(std::vector<ControlId> ids) {
  std::vector<HWND> lists;
  for (const ControlId id : ids) {
    HWND list = control(id);
    if (list == nullptr) continue;
    lists.push_back(list);
    SetWindowSubclass(list, linkedListProcedure, 1, reinterpret_cast<DWORD_PTR>(this));
  }
  linkedLists_.push_back(std::move(lists));
}

HWND NativeDialog::scrollerFor(HWND list) const {
  for (const std::vector<HWND>& linked : linkedLists_) {
    if (std::find(linked.begin(), linked.end(), list) == linked.end()) continue;
    const auto scroller = std::find_if(linked.begin(), linked.end(), [](HWND other) {
      return (GetWindowLongA(other, GWL_STYLE) & WS_VSCROLL) != 0;
    });
    if (scroller != linked.end()) return *scroller;
  }
  return list;
}

void NativeDialog::linkedListMoved(HWND list) {
  const LRESULT top = SendMessageA(list, LB_GETTOPINDEX, 0, 0);
  for (const std::vector<HWND>& linked : linkedLists_) {
    if (std::find(linked.begin(), linked.end(), list) == linked.end()) continue;
    for (HWND other : linked) {
      if (SendMessageA(other, LB_GETTOPINDEX, 0, 0) == top) continue;
      SendMessageA(other, LB_SETTOPINDEX, static_cast<WPARAM>(top), 0);
    }
  }
}

void NativeDialog::setEnabled(ControlId id, bool enabled) {
  HWND target = control(id);
  if (target == nullptr) return;
  // A disabled control that keeps the focus would swallow the keyboard.
  if (!enabled && GetFocus() == target) SendMessageA(window_, WM_NEXTDLGCTL, 0, FALSE);
  EnableWindow(target, enabled ? TRUE : FALSE);
}

void NativeDialog::focus(ControlId id) {
  HWND target = control(id);
  if (target == nullptr) return;
  focused_ = true;
  SetFocus(target);
  drawDefaultButtons(window_);
}

void NativeDialog::selectText(ControlId id) {
  send(id, EM_SETSEL, 0, -1);
}

void NativeDialog::setDefaultButton(ControlId id) {
  if (control(id) == nullptr) return;
  SendMessageA(window_, DM_SETDEFID, static_cast<WPARAM>(id), 0);
  drawDefaultButtons(window_);
}

void NativeDialog::end(int result) {
  ended_ = true;
  EndDialog(window_, result);
}

INT_PTR CALLBACK dialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrA(window, DWLP_USER, lParam);
    return reinterpret_cast<NativeDialog*>(lParam)->initialize(window);
  }
  auto* dialog = reinterpret_cast<NativeDialog*>(GetWindowLongPtrA(window, DWLP_USER));
  // Controls report their first texts before the dialog is initialized.
  if (dialog == nullptr) return FALSE;
  if (message == WM_COMMAND) return dialog->command(LOWORD(wParam), HIWORD(wParam));
  if (message == WM_CLOSE) return dialog->closeBox();
  return FALSE;
}

}  // namespace

int runDialogOver(NativeWindow owner, int resourceId, DialogBehaviour& behaviour) {
  NativeDialog dialog(behaviour);
  HINSTANCE program = GetModuleHandleA(nullptr);
  const auto data = reinterpret_cast<LPARAM>(&dialog);
  const INT_PTR result =
      behaviour.usesUnicode()
          ? DialogBoxParamW(program, MAKEINTRESOURCEW(resourceId), owner, dialogProcedure, data)
          : DialogBoxParamA(program, MAKEINTRESOURCEA(resourceId), owner, dialogProcedure, data);
  return static_cast<int>(result);
}

}  // namespace scorvane
