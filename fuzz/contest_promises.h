// What must hold of a contest whatever an operator did to it.
#pragma once

#include <set>

#include "fuzz/card_ledger.h"
#include "model/contest.h"
#include "tests/ui/memory_dialog.h"

namespace scorvane {

/// Watches a session for the few actions that loosen a promise, and checks the rest.
class ContestPromises {
 public:
  explicit ContestPromises(const Contest& contest) { ledger_.enter(contest); }

  /// To be told of every command before it runs, and of every action in the dialog it opened.
  void commandStarts(int commandId) { command_ = commandId; }
  void dialogActed(const MemoryDialog& dialog);

  /// Ends the run when the contest breaks a promise.
  void check(const Contest& contest);

 private:
  void keepLedger(const Contest& contest);
  void checkReasonsOrder(const Contest& contest);
  [[nodiscard]] bool comesBackAlike(const Contest& contest) const;

  CardLedger ledger_;
  int command_ = 0;
  bool classRefused_ = false;
  bool teamsCleared_ = false;
  std::set<ContestantNumber> strays_;  ///< who stands in a cell without having that place
};

}  // namespace scorvane
