// A contest in the middle of score entry, for the tests of the entry dialogs.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>

#include "storage/contest_commands.h"
#include "tests/support/contest_builder.h"
#include "tests/ui/memory_dialog.h"

/// Groups A (101, 105) and B (102, 106), with nobody behind 103 and 104, and C without anybody.
/// Of three classes the first and third have questions, the second and third reasons. Reasons
/// groups: 105, 101, a hole, 102; a hole, 106; two holes, 102.
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
    ReasonsOrder& order = contest().reasonsOrder;
    order.reset(6, 3);
    order.setCells({{{0, 0}, 105}, {{0, 1}, 101}, {{0, 3}, 102}, {{1, 1}, 106}, {{2, 2}, 102}});
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

/// The texts of controls, each followed by a bar.
inline std::string textsOf(const MemoryDialog& dialog, std::initializer_list<ControlId> ids) {
  std::string texts;
  for (const ControlId id : ids) texts += dialog.text(id) + '|';
  return texts;
}

/// Caption and text of the last message box.
inline std::string lastMessage(const MemoryDialog& dialog) {
  if (dialog.desktop.messages.empty()) return "";
  const Message& message = dialog.desktop.messages.back();
  return message.caption + ": " + message.text;
}
