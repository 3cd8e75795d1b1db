// Reads dialog templates out of the program's resource scripts, for the in-memory dialog and for
// tests that hold scripts and behaviour against each other.
#pragma once

#include <string>
#include <vector>

struct TemplateControl {
  std::string statement;  ///< LTEXT, EDITTEXT, LISTBOX, ...; CONTROL by its window class
  std::string caption;
  int id = -1;
  std::string styles;  ///< everything after the position, as written
  int x = 0, y = 0, width = 0, height = 0;
};

struct DialogTemplate {
  int id = 0;
  std::string name;  ///< the resource's name as written, also when it is a number
  std::string caption;
  int width = 0, height = 0;
  std::vector<TemplateControl> controls;  ///< in tab order
};

/// All DIALOGEX templates of src/**/*.rc.
const std::vector<DialogTemplate>& dialogTemplates();
/// The template of a resource id; null when no script declares it.
const DialogTemplate* findDialogTemplate(int id);
