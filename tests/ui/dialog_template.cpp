#include "tests/ui/dialog_template.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

namespace {

// A resource script cut into words, quoted texts (marked by a leading '"') and single marks.
std::vector<std::string> tokensOf(const std::string& script) {
  std::vector<std::string> tokens;
  std::size_t i = 0;
  const auto startsWith = [&](const char* mark) { return script.compare(i, 2, mark) == 0; };
  while (i < script.size()) {
    const auto c = static_cast<unsigned char>(script[i]);
    if (std::isspace(c) != 0) {
      ++i;
    } else if (c == '#' || startsWith("//")) {
      i = std::min(script.find('\n', i), script.size());
    } else if (startsWith("/*")) {
      const std::size_t end = script.find("*/", i);
      i = end == std::string::npos ? script.size() : end + 2;
    } else if (c == '"') {
      std::string text = "\"";
      for (++i; i < script.size(); ++i) {
        if (script[i] == '"' && i + 1 < script.size() && script[i + 1] == '"') {
          ++i;
        } else if (script[i] == '"') {
          break;
        }
        text += script[i];
      }
      ++i;
      tokens.push_back(text);
    } else if (std::isalnum(c) != 0 || c == '_' || c == '-') {
      std::size_t end = i + 1;
      while (end < script.size() &&
             (std::isalnum(static_cast<unsigned char>(script[end])) != 0 || script[end] == '_')) {
        ++end;
      }
      tokens.push_back(script.substr(i, end - i));
      i = end;
    } else {
      tokens.emplace_back(1, script[i++]);
    }
  }
  return tokens;
}

const std::set<std::string> kWithCaption = {
    "LTEXT",    "CTEXT",   "RTEXT",        "GROUPBOX",        "PUSHBUTTON", "DEFPUSHBUTTON",
    "CHECKBOX", "CONTROL", "AUTOCHECKBOX", "AUTORADIOBUTTON", "ICON"};
const std::set<std::string> kWithoutCaption = {"EDITTEXT", "LISTBOX", "COMBOBOX"};

bool startsControl(const std::string& token) {
  return kWithCaption.count(token) != 0 || kWithoutCaption.count(token) != 0;
}

std::string unquoted(const std::string& token) {
  return !token.empty() && token[0] == '"' ? token.substr(1) : token;
}

// The arguments of one control statement, split at its commas.
std::vector<std::vector<std::string>> argumentsOf(const std::vector<std::string>& tokens,
                                                  std::size_t& at) {
  std::vector<std::vector<std::string>> arguments(1);
  while (at < tokens.size() && tokens[at] != "END" && tokens[at] != "}" &&
         !startsControl(tokens[at])) {
    if (tokens[at] == ",") {
      arguments.emplace_back();
    } else {
      arguments.back().push_back(tokens[at]);
    }
    ++at;
  }
  return arguments;
}

TemplateControl controlOf(std::string statement, std::vector<std::vector<std::string>> arguments) {
  TemplateControl control;
  const auto joined = [&](std::size_t index) {
    std::string text;
    for (std::size_t i = index; i < arguments.size(); ++i) {
      for (const std::string& token : arguments[i]) text += token + ' ';
    }
    return text;
  };
  const auto number = [&](std::size_t index) {
    if (index >= arguments.size() || arguments[index].empty()) return -1;
    return std::atoi(arguments[index][0].c_str());
  };
  std::size_t next = 0;
  if (kWithCaption.count(statement) != 0) {
    if (!arguments[0].empty()) control.caption = unquoted(arguments[0][0]);
    next = 1;
  }
  control.id = number(next++);
  if (statement == "CONTROL" && arguments.size() > 3) {
    statement = unquoted(arguments[next][0]);
    control.styles = joined(next + 1);
    arguments.erase(arguments.begin() + static_cast<std::ptrdiff_t>(next),
                    arguments.begin() + static_cast<std::ptrdiff_t>(next) + 2);
  }
  control.statement = statement;
  control.x = number(next);
  control.y = number(next + 1);
  control.width = number(next + 2);
  control.height = number(next + 3);
  control.styles += joined(next + 4);
  return control;
}

void readScript(const std::string& script, std::vector<DialogTemplate>& templates) {
  const std::vector<std::string> tokens = tokensOf(script);
  for (std::size_t i = 1; i < tokens.size(); ++i) {
    if (tokens[i] != "DIALOGEX" && tokens[i] != "DIALOG") continue;
    DialogTemplate dialog;
    dialog.name = tokens[i - 1];
    dialog.id = std::atoi(dialog.name.c_str());
    std::vector<int> position;
    while (i < tokens.size() && tokens[i] != "BEGIN" && tokens[i] != "{") {
      if (tokens[i] == "CAPTION") dialog.caption = unquoted(tokens[i + 1]);
      if (position.size() < 4 && std::isdigit(static_cast<unsigned char>(tokens[i][0])) != 0) {
        position.push_back(std::atoi(tokens[i].c_str()));
      }
      ++i;
    }
    if (position.size() == 4) {
      dialog.width = position[2];
      dialog.height = position[3];
    }
    ++i;
    while (i < tokens.size() && startsControl(tokens[i])) {
      const std::string& statement = tokens[i++];
      dialog.controls.push_back(controlOf(statement, argumentsOf(tokens, i)));
    }
    templates.push_back(dialog);
  }
}

}  // namespace

const std::vector<DialogTemplate>& dialogTemplates() {
  static const std::vector<DialogTemplate> templates = [] {
    std::vector<DialogTemplate> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(SOURCE_DIR "/src")) {
      if (entry.path().extension() != ".rc") continue;
      std::ifstream file(entry.path(), std::ios::binary);
      readScript({std::istreambuf_iterator<char>(file), {}}, found);
    }
    return found;
  }();
  return templates;
}

const DialogTemplate* findDialogTemplate(int id) {
  const auto& templates = dialogTemplates();
  const auto found = std::find_if(templates.begin(), templates.end(),
                                  [id](const DialogTemplate& t) { return t.id == id; });
  return found == templates.end() ? nullptr : &*found;
}
