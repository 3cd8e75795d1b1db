// When two names of a sheet or a contest are one.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace scorvane {

/// What all spellings of one name have in common: case and blanks do not count, nor does what
/// tidying takes away.
[[nodiscard]] std::string keyOfName(std::string_view name);

/// Whether two tidied names have the same key, and a number that is then the same, too.
[[nodiscard]] bool isSameName(std::string_view a, std::string_view b);
[[nodiscard]] std::uint32_t hashOfName(std::string_view name);

/// A name in quotation marks, cut when it is very long.
[[nodiscard]] std::string quotedName(std::string_view name);

}  // namespace scorvane
