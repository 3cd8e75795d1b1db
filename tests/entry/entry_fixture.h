// A contest in the middle of score entry, for the tests of the entry dialogs.
#pragma once

#include <gtest/gtest.h>

#include "storage/contest_commands.h"
#include "tests/support/contest_builder.h"
#include "tests/ui/memory_dialog.h"

/// Groups A (101, 103, 105) and B (102, 104, 106), where nobody stands behind 103 and 104, and C
/// without anybody; three classes, of which the first and third have questions and the second and
/// third reasons.
class EntryTest : public testing::Test {
 protected:
  EntryTest() {
    ContestBuilder builder;
    builder.contest.settings.numGroups = 2;
    builder.contest.groupLetters = {'A', 'B', 'C'};
    builder.addClass({.name = "Steers", .questions = true, .official = 'A', .cuts = {2, 3, 4}});
    builder.addClass({.name = "Ewes", .reasons = true, .official = 'X', .cuts = {5, 5, 5}});
    builder.addClass({.name = "Gilts", .reasons = true, .questions = true, .official = ' '});
    builder.team("Avon", "", {"Ann", "Bob", "", "", "Eve", "Fay"});
    contest() = builder.contest;
    contest().reasonsOrder.reset(6, 3);
    currentFileName().clear();
  }
  ~EntryTest() override {
    contest() = Contest{};
    currentFileName().clear();
  }

  static Contest& contest() { return currentContest(); }
  static const ScoreRecord& record(ContestantNumber number, std::int32_t classIndex) {
    return scoreRecord(contest(), number, classIndex);
  }
};

/// Text and caption of the last message box.
inline std::string lastMessage(const MemoryDialog& dialog) {
  if (dialog.desktop.messages.empty()) return "";
  const Message& message = dialog.desktop.messages.back();
  return message.caption + ": " + message.text;
}
