// Every dialog of the program: a letter pressed with Alt leads to one control only.
#include <gtest/gtest.h>

#include <cctype>
#include <map>

#include "tests/ui/dialog_template.h"

namespace {

TEST(Mnemonics, AreUniqueWithinADialog) {
  EXPECT_FALSE(dialogTemplates().empty());
  for (const DialogTemplate& dialog : dialogTemplates()) {
    std::map<int, std::string> captions;
    for (const TemplateControl& control : dialog.controls) {
      const std::size_t mark = control.caption.find('&');
      if (mark == std::string::npos) continue;
      const int letter = std::toupper(static_cast<unsigned char>(control.caption[mark + 1]));
      const auto [first, isNew] = captions.emplace(letter, control.caption);
      EXPECT_TRUE(isNew) << dialog.name << ": " << first->second << ", " << control.caption;
    }
  }
}

}  // namespace
