// Arguments as the library of options wants them, and what is said of those it does not know.
#pragma once

#include <CLI/CLI.hpp>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace scorvane {

[[nodiscard]] std::string inQuotes(std::string_view text);

/// "; did you mean ...?" with the name most like the one typed, or `otherwise`.
[[nodiscard]] std::string suggested(std::string_view typed, const std::vector<std::string>& names,
                                    const char* otherwise);

/// Why arguments that the library could not use are refused: an option of this name is unknown.
[[nodiscard]] std::string refuseUnknown(const CLI::App& app);

/// The arguments in the order that the library takes them, the last one first, with "--title=" in
/// two: it would take the next argument for its value.
[[nodiscard]] std::vector<std::string> libraryArguments(
    std::span<const std::string_view> arguments);

}  // namespace scorvane
