// The little that scorvane-report needs of the operating system besides files.
#pragma once

#include <cstddef>

namespace scorvane {

/// Keeps the system from changing line ends on standard output.
void makeStandardOutputBinary();

/// Whether standard output is a terminal.
[[nodiscard]] bool isOutputTerminal();

/// Prepares for a need of about so many bytes of memory, so that they come faster. Nothing depends
/// on it.
void expectMemory(std::size_t bytes);

}  // namespace scorvane
