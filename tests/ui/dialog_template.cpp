#include "tests/ui/dialog_template.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>

namespace scorvane {

namespace {

std::vector<TemplateControl> controlsOf(const std::string& script) {
  static const std::regex statement(
      R"re(\n *([A-Z]+) (?:"([^"]*)", |\d+, )?(-?\d+)(?:, \d+){4}((?:[\s,|]+(?:NOT )?[A-Z]+_\w+)*))re");
  std::vector<TemplateControl> controls;
  for (std::sregex_iterator it(script.begin(), script.end(), statement), end; it != end; ++it) {
    controls.push_back({it->str(1), it->str(2), std::stoi(it->str(3)), it->str(4)});
  }
  return controls;
}

}  // namespace

const std::map<std::string, DialogTemplate>& dialogTemplates() {
  static const std::map<std::string, DialogTemplate> templates = [] {
    std::map<std::string, DialogTemplate> found;
    const std::regex head(R"re((\w+) DIALOGEX.*\n.*\nCAPTION "(.*)")re");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(SOURCE_DIR "/src")) {
      if (entry.path().extension() != ".rc") continue;
      std::ifstream file(entry.path(), std::ios::binary);
      const std::string script(std::istreambuf_iterator<char>(file), {});
      std::smatch dialog;
      if (!std::regex_search(script, dialog, head)) continue;
      found[dialog.str(1)] = {dialog.str(2), controlsOf(script)};
    }
    return found;
  }();
  return templates;
}

}  // namespace scorvane
