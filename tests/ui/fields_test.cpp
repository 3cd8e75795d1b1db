// What fields and lists of dialogs make of keys and texts.
#include "ui/field_text.h"

#include <gtest/gtest.h>

#include "tests/ui/memory_dialog.h"
#include "ui/line_search.h"

namespace scorvane {

namespace {

class NoBehaviour : public DialogBehaviour {
 public:
  void onOpen(Dialog& /*dialog*/) override {}
  void onEvent(Dialog& /*dialog*/, ControlId /*id*/, ControlEvent /*event*/) override {}
  void onClose(Dialog& /*dialog*/) override {}
};

// A longer text would not come back from the line of the file.
TEST(FieldText, IsCutAtItsLimit) {
  constexpr int kSetupClasses = 135;
  constexpr ControlId kName = 1008;
  NoBehaviour behaviour;
  MemoryDialog dialog(kSetupClasses, behaviour);
  dialog.paste(kName, "a\tb" + std::string(600, 'x'));
  EXPECT_EQ(fieldText(dialog, kName), "a b" + std::string(496, 'x'));
}

TEST(LineSearch, GoesRoundFromTheLineAfterAndSkipsBlanks) {
  const std::vector<std::string> lines = {" 1.  Steers", "", " 2.  Ewes", "   a   ", "10.  Hogs"};
  struct Case {
    char typed;
    std::optional<int> after, found;
  };
  for (const Case& c : {Case{'1', {}, 0},
                        {'1', 0, 4},
                        {'1', 4, 0},
                        {'2', 2, 2},
                        {'2', 3, 2},
                        {'A', {}, 3},
                        {'a', 3, 3},
                        {'S', {}, {}}}) {
    EXPECT_EQ(lineBeginningWith(lines, c.typed, c.after), c.found) << c.typed;
  }
  EXPECT_EQ(lineBeginningWith({}, '1', {}), std::nullopt);
}

}  // namespace

}  // namespace scorvane
