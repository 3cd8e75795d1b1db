// Reads dialog templates out of the program's resource scripts, for the in-memory dialog and for
// tests that hold scripts and behaviour against each other.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace scorvane {

struct TemplateControl {
  std::string statement;  ///< LTEXT, EDITTEXT, LISTBOX, ...
  std::string caption;    ///< with its "&"
  int id = -1;
  std::string name;    ///< the id's, in words, when the script gives it by name
  std::string styles;  ///< everything after the position, as written

  [[nodiscard]] bool has(const char* style) const {
    return styles.find(style) != std::string::npos;
  }
};

struct DialogTemplate {
  std::string caption;
  int width = 0;  ///< in dialog units, as is the height
  int height = 0;
  std::vector<TemplateControl> controls;  ///< in tab order
};

/// The dialogs of src/**/*.rc, one a script, by name or number as written there.
const std::map<std::string, DialogTemplate>& dialogTemplates();

}  // namespace scorvane
