// Setup dialogs under test, each over a contest of its own.
#pragma once

#include <gtest/gtest.h>

#include "storage/contest_commands.h"
#include "tests/support/contest_builder.h"
#include "tests/ui/memory_dialog.h"

using Lines = std::vector<std::string>;
/// Where the operator's keys go, and the button that Enter presses.
using FocusAndDefault = std::pair<ControlId, ControlId>;

template <typename Behaviour>
struct Held {
  Behaviour behaviour;
};

/// An open dialog over `contest`, which becomes the current one. The contest is untitled, so a save
/// shows as a question for its file.
template <typename Behaviour, int resourceId>
struct SetupDialog : Held<Behaviour>, MemoryDialog {
  explicit SetupDialog(Contest contest = ContestBuilder().contest)
      : MemoryDialog((currentContest() = std::move(contest), currentFileName().clear(), resourceId),
                     Held<Behaviour>::behaviour) {}

  /// Whether the dialog has saved and ended; that it did only one of them fails the test.
  [[nodiscard]] bool isDone() const {
    EXPECT_EQ(desktop.fileQuestions.size(), result() ? 1U : 0U);
    return result().has_value();
  }
  /// The fields' texts with bars between.
  [[nodiscard]] std::string texts(std::initializer_list<ControlId> fields) const {
    std::string joined;
    for (const ControlId id : fields) joined += text(id) + '|';
    joined.pop_back();
    return joined;
  }
  [[nodiscard]] FocusAndDefault focusAndDefault() const { return {focused(), defaultButton()}; }
  /// Text of the last message and, after a bar, its caption; "" without one. Forgets them.
  std::string takeMessage() {
    if (desktop.messages.empty()) return "";
    const std::string caption = desktop.messages.back().caption;
    return desktop.takeMessage() + '|' + caption;
  }
  /// Presses a button; gives the message this shows, as takeMessage(). A question must propose
  /// Cancel, and gets `answer`.
  std::string press(ControlId button, Answer answer = Answer::ok) {
    desktop.answers = {answer};
    click(button);
    for (const Message& shown : desktop.messages) {
      EXPECT_EQ(shown.defaultAnswer == Answer::cancel, shown.buttons == Buttons::okCancel);
    }
    return takeMessage();
  }
};
