#include "ui/field_text.h"

#include <gtest/gtest.h>

#include "tests/ui/memory_dialog.h"

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

}  // namespace

}  // namespace scorvane
