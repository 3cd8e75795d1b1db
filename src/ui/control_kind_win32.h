// What kind of control a window is, what it reports, and how lists and combo boxes are spoken to.
#pragma once

#include <optional>

#include "ui/dialog.h"
#include "ui/native_window_win32.h"

namespace scorvane {

enum class ControlKind { button, edit, list, combo, other };

[[nodiscard]] ControlKind controlKind(NativeWindow control);

/// Whether the control is a button that can be the default one; false for null.
[[nodiscard]] bool isPushButton(NativeWindow control);

/// Marks the button of a dialog that Enter presses: the push button that has the focus, else the
/// default one.
void drawDefaultButtons(NativeWindow dialog);

/// Whether a control is a list, and a key is down that moves through it.
[[nodiscard]] bool isMovedByKeys(NativeWindow control);

/// Whether several lines of the control can be selected at once.
[[nodiscard]] bool isMultipleSelection(NativeWindow control);

/// Lists and combo boxes understand the same requests under different names.
struct LineMessages {
  unsigned count, add, insert, remove, clear, reserve, selection, select, key, setKey;
};
/// The names that the control understands.
[[nodiscard]] const LineMessages& lineMessagesOf(NativeWindow control);

/// The event that a notification of the control means; nothing for all others.
[[nodiscard]] std::optional<ControlEvent> controlEvent(NativeWindow control, unsigned notification);

}  // namespace scorvane
