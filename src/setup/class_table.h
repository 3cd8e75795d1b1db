// The table of classes in the Setup Classes dialog: five lists side by side.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "model/contest.h"
#include "ui/dialog.h"

namespace scorvane {

/// A class's lines in the lists, in the order of setup_classes::kTable. An index from 0; what the
/// class columns lack reads as blank.
[[nodiscard]] std::array<std::string, 5> classLines(const Contest& contest, std::int32_t index);

/// Empties the lists and shows every class of the current contest.
void reloadClassTable(Dialog& dialog);

/// Appends the lines of one class.
void appendToClassTable(Dialog& dialog, std::int32_t index);

/// Selects the same line, or none, in all five lists.
void selectInClassTable(Dialog& dialog, std::optional<int> line);

}  // namespace scorvane
