// Every dialog of the program: a letter pressed with Alt leads to one control only.
#include <gtest/gtest.h>

#include <cctype>
#include <set>

#include "tests/ui/dialog_template.h"

namespace scorvane {

TEST(Mnemonics, AreUniqueWithinADialog) {
  EXPECT_FALSE(dialogTemplates().empty());
  for (const auto& [name, dialog] : dialogTemplates()) {
    std::set<int> letters;
    for (const TemplateControl& control : dialog.controls) {
      const std::size_t mark = control.caption.find('&');
      if (mark == std::string::npos) continue;
      EXPECT_TRUE(letters.insert(std::toupper(control.caption[mark + 1])).second)
          << name << ": " << control.caption;
    }
  }
}

}  // namespace scorvane
