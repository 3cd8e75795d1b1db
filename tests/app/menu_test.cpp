// The resource scripts' menu and accelerators against the command table.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>

#include "app/command_table.h"
#include "tests/support/approved.h"

namespace {

struct MenuItem {
  std::string menu;
  std::string caption;  // with its "&"
  int id = 0;
};

std::vector<MenuItem> menuItems() {
  const std::string script = sourceFile("src/app/menu.rc");
  const std::regex statement(R"re(POPUP "([^"]*)"|MENUITEM "([^"]*)", (\d+))re");
  std::vector<MenuItem> items;
  std::string menu;
  for (std::sregex_iterator it(script.begin(), script.end(), statement), end; it != end; ++it) {
    if ((*it)[1].matched) {
      menu = (*it)[1];
    } else {
      items.push_back({menu, (*it)[2], std::stoi((*it)[3])});
    }
  }
  return items;
}

std::string plain(std::string caption) {
  caption.erase(std::remove(caption.begin(), caption.end(), '&'), caption.end());
  return caption;
}

}  // namespace

TEST(Menu, OffersEveryCommandInTheTablesOrder) {
  std::vector<std::string> offered;
  std::vector<std::string> expected;
  for (const MenuItem& item : menuItems()) {
    offered.push_back(plain(item.menu) + ": " + plain(item.caption) + std::to_string(item.id));
  }
  for (const Command& command : commandTable()) {
    EXPECT_TRUE(command.run != nullptr ||
                (command.report != nullptr && command.question == ReportQuestion::nothing))
        << command.caption;
    if (command.menu.empty()) continue;
    expected.push_back(std::string(command.menu) + ": " + std::string(command.caption) +
                       std::to_string(command.id));
  }
  EXPECT_EQ(offered, expected);
}

TEST(Menu, HasOneMnemonicForEveryItem) {
  std::map<std::string, std::string> taken;
  const auto take = [&](const std::string& menu, const std::string& caption) {
    const std::size_t mark = caption.find('&');
    ASSERT_NE(mark, std::string::npos) << caption;
    const char key = static_cast<char>(std::tolower(static_cast<unsigned char>(caption[mark + 1])));
    // The results of individuals and of teams share theirs, four by four.
    const bool ofTeams = caption.find("High Team") == 0;
    const std::string place = menu + (ofTeams ? " teams " : " ") + key;
    EXPECT_TRUE(taken.emplace(place, caption).second)
        << caption << " and " << taken[place] << " share " << key;
  };
  std::string menu;
  for (const MenuItem& item : menuItems()) {
    if (item.menu != menu) take("", item.menu);
    menu = item.menu;
    take(menu, item.caption);
  }
}

TEST(Menu, HasTheKeysOfAbout) {
  const std::string script = sourceFile("src/app/scorvane.rc");
  const std::regex accelerator(R"re("(.)", \d+, ASCII)re");
  std::string keys;
  for (std::sregex_iterator it(script.begin(), script.end(), accelerator), end; it != end; ++it) {
    keys += it->str() + "\n";
  }
  EXPECT_EQ(keys, "\"?\", 104, ASCII\n\"/\", 104, ASCII\n");
}
