// Setup dialogs under test, each over a contest of its own.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "storage/contest_commands.h"
#include "tests/support/contest_builder.h"
#include "tests/ui/memory_dialog.h"

/// A dialog's behaviour in an open dialog over `contest`, which becomes the current one. The
/// contest is untitled, so a save shows as a question for its file.
template <typename Behaviour>
struct SetupDialog {
  explicit SetupDialog(int resourceId, Contest contest)
      : dialog((currentContest() = std::move(contest), currentFileName().clear(), resourceId),
               behaviour) {}

  Behaviour behaviour;
  MemoryDialog dialog;

  [[nodiscard]] bool saved() const { return dialog.desktop.fileQuestions.size() == 1; }

  /// Text of the last message and, after a bar, its caption; "" without one. Forgets them.
  std::string takeMessage() {
    if (dialog.desktop.messages.empty()) return "";
    const std::string caption = dialog.desktop.messages.back().caption;
    return dialog.desktop.takeMessage() + "|" + caption;
  }

  /// Presses a button; gives the message this shows, as takeMessage().
  std::string press(ControlId button) {
    dialog.click(button);
    return takeMessage();
  }
};
