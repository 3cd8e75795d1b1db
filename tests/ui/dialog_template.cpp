#include "tests/ui/dialog_template.h"

#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>

namespace scorvane {

namespace {

std::string textOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The ids that the headers shared with the scripts define.
const std::map<std::string, int>& definedIds() {
  static const std::map<std::string, int> ids = [] {
    std::map<std::string, int> found;
    const std::regex definition(R"re(#define (ID\w*) (\d+))re");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(SOURCE_DIR "/src")) {
      if (!entry.path().string().ends_with("_ids.h")) continue;
      const std::string header = textOf(entry.path());
      for (std::sregex_iterator it(header.begin(), header.end(), definition), end; it != end;
           ++it) {
        found[it->str(1)] = std::stoi(it->str(2));
      }
    }
    return found;
  }();
  return ids;
}

int idOf(const std::string& written) {
  return written.starts_with("ID") ? definedIds().at(written) : std::stoi(written);
}

// "IDC_LAST_SCORE" in words: "last score".
std::string nameOf(const std::string& written) {
  if (!written.starts_with("IDC_")) return "";
  std::string name = written.substr(4);
  for (char& c : name) c = c == '_' ? ' ' : static_cast<char>(std::tolower(c));
  return name;
}

std::vector<TemplateControl> controlsOf(const std::string& script) {
  static const std::regex statement(
      R"re(\n *([A-Z]+) (?:"([^"]*)", |\w+, )?(-?\w+)(?:, \d+){4}((?:[\s,|]+(?:NOT )?[A-Z]+_\w+)*))re");
  std::vector<TemplateControl> controls;
  for (std::sregex_iterator it(script.begin(), script.end(), statement), end; it != end; ++it) {
    controls.push_back({it->str(1), it->str(2), idOf(it->str(3)), nameOf(it->str(3)), it->str(4)});
  }
  return controls;
}

}  // namespace

const std::map<std::string, DialogTemplate>& dialogTemplates() {
  static const std::map<std::string, DialogTemplate> templates = [] {
    std::map<std::string, DialogTemplate> found;
    const std::regex head(R"re((\w+) DIALOGEX 0, 0, (\d+), (\d+)\n.*\nCAPTION "(.*)")re");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(SOURCE_DIR "/src")) {
      if (entry.path().extension() != ".rc") continue;
      const std::string script = textOf(entry.path());
      std::smatch dialog;
      if (!std::regex_search(script, dialog, head)) continue;
      const std::string id = dialog.str(1);
      found[id.starts_with("IDD_") && definedIds().count(id) != 0 ? std::to_string(idOf(id)) : id] =
          {dialog.str(4), std::stoi(dialog.str(2)), std::stoi(dialog.str(3)), controlsOf(script)};
    }
    return found;
  }();
  return templates;
}

}  // namespace scorvane
