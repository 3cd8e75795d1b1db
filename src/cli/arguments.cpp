#include "cli/arguments.h"

#include <algorithm>

#include "cli/suggestion.h"

namespace scorvane {

std::string inQuotes(std::string_view text) {
  return "'" + std::string(text) + "'";
}

std::string suggested(std::string_view typed, const std::vector<std::string>& names,
                      const char* otherwise) {
  const std::string nearest = nearestName(typed, names);
  return nearest.empty() ? otherwise : "; did you mean " + nearest + "?";
}

std::string refuseUnknown(const CLI::App& app) {
  const std::vector<std::string> unknown = app.remaining(true);
  std::vector<std::string> names;
  for (const CLI::Option* option : app.get_options()) {
    if (!option->get_lnames().empty()) names.push_back(option->get_name());
  }
  const std::string typed = unknown.empty() ? "" : unknown[0].substr(0, unknown[0].find('='));
  return "there is no option " + inQuotes(typed) + suggested(typed, names, "");
}

std::vector<std::string> libraryArguments(std::span<const std::string_view> arguments) {
  std::vector<std::string> separate;
  bool onlyWords = false;
  for (const std::string_view argument : arguments) {
    onlyWords = onlyWords || argument == "--";
    const bool isEmptyValue =
        !onlyWords && argument.starts_with("--") && argument.find('=') == argument.size() - 1;
    separate.emplace_back(argument.substr(0, argument.size() - (isEmptyValue ? 1 : 0)));
    if (isEmptyValue) separate.emplace_back();
  }
  std::reverse(separate.begin(), separate.end());
  return separate;
}

}  // namespace scorvane
