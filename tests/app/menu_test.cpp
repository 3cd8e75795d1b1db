// The resource scripts' menu, accelerators and mnemonics, against the command table and each other.
#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "app/command_table.h"
#include "tests/support/approved.h"
#include "tests/ui/dialog_template.h"

namespace scorvane {

namespace {

// The results of individuals and of teams share their mnemonics, four by four.
TEST(Menu, OffersEveryCommandInTheTablesOrderByAKeyOfItsOwn) {
  std::set<std::string> taken;
  const auto withoutMark = [&taken](const std::string& menu, std::string caption) {
    const std::size_t mark = caption.find('&');
    EXPECT_NE(mark, std::string::npos) << caption;
    caption.erase(std::min(mark, caption.size()), 1);
    std::string key = menu + (caption.starts_with("High Team") ? " teams " : " ");
    key.push_back(static_cast<char>(std::tolower(static_cast<unsigned char>(caption[mark]))));
    EXPECT_TRUE(taken.insert(key).second) << caption;
    return caption;
  };
  const std::string script = sourceFile("src/app/menu.rc");
  const std::regex statement(R"re(POPUP "([^"]*)"|MENUITEM "([^"]*)", (\d+))re");
  std::string menu, offered, expected;
  for (std::sregex_iterator it(script.begin(), script.end(), statement), end; it != end; ++it) {
    if ((*it)[1].matched) {
      menu = withoutMark("", (*it)[1]);
    } else {
      offered += menu + ": " + withoutMark(menu, (*it)[2]) + " " + it->str(3) + "\n";
    }
  }
  for (const Command& command : commandTable()) {
    if (command.menu.empty()) continue;
    expected.append(command.menu).append(": ").append(command.caption).append(" ");
    expected += std::to_string(command.id) + "\n";
  }
  EXPECT_EQ(offered, expected);
}

// A letter pressed with Alt leads to one control only, D to Done everywhere. With larger dialogs
// the buttons would be beyond a display of 1280 by 720 dots at 150 per cent.
TEST(Dialogs, HaveMnemonicsOfTheirOwnAndFitASmallDisplay) {
  EXPECT_FALSE(dialogTemplates().empty());
  for (const auto& [name, dialog] : dialogTemplates()) {
    EXPECT_LE(dialog.width, 440) << name;
    EXPECT_LE(dialog.height, 210) << name;
    std::set<int> letters;
    for (const TemplateControl& control : dialog.controls) {
      const std::size_t mark = control.caption.find('&');
      if (mark == std::string::npos) continue;
      EXPECT_TRUE(letters.insert(std::toupper(control.caption[mark + 1])).second)
          << name << ": " << control.caption;
      EXPECT_EQ(control.caption[mark + 1] == 'D', control.caption == "&Done") << name;
    }
  }
}

}  // namespace

}  // namespace scorvane
