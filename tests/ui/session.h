// Sessions of operators at dialogs, written as text: a line for every step, and below it, indented,
// all that the step changed on screen and in the contest. Of the contest "+" is what became new or
// other, "-" what is there no more.
//
//   open Setup Teams over two teams, no scores   a dialog, a contest, and what befell that before
//   type: Elm                                    keys, wherever the focus is
//   reopen ...                                   likewise, where what is then shown is known
//   fill Coach 1018: Oak                         a control by its id; its name is for the reader
//   paste, press, focus, set, default            likewise; the last two no operator can do
//   choose Teams 1019: 2                         the second line
//   move Teams 1019: 2                           the same by the arrow keys
//   unselect Teams 1019
//   Enter, Escape, close                         the last is the close box
//   answer: Cancel                               to the next question
//   file: fair.scv                               to the next question for a file
//   meanwhile: no scores                         what befalls the contest
//   # A remark
//
// Steps that stand on one line, with "; " between, show their effect together.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "model/contest.h"
#include "ui/dialog.h"

namespace scorvane {

/// What the sessions of one folder of tests speak of, by the names they use.
struct SessionWorld {
  std::map<std::string, std::function<std::unique_ptr<DialogBehaviour>()>> dialogs;  ///< captions
  std::map<std::string, std::function<Contest()>> contests;
  std::map<std::string, std::function<void(Contest&)>> events;  ///< what can befall a contest
  std::function<void()> tidy = [] {};                           ///< after every session
};

/// Makes a test of every session in tests/<folder>, to be called before the tests run. It plays the
/// steps and holds what came of them against the session's very file, as expectApproved() does. The
/// contest is untitled, so a save asks for a file.
bool playSessions(const std::string& folder, const SessionWorld& world);

}  // namespace scorvane
