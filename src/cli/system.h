// The little that scorvane-report needs of the operating system besides files.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace scorvane {

/// Keeps the system from changing line ends on standard output.
void makeStandardOutputBinary();

/// Whether standard output is a terminal.
[[nodiscard]] bool isOutputTerminal();

/// Prepares for a need of about so many bytes of memory, so that they come faster. Nothing depends
/// on it.
void expectMemory(std::size_t bytes);

/// The words of the command line without the program's own name, as they were typed: paths among
/// them are as FileSystem takes them.
[[nodiscard]] std::vector<std::string> commandLineWords(int count, char** words);

/// A word of the command line in the 8-bit text that contests have, and that answers are written
/// in.
[[nodiscard]] std::string contestText(const std::string& word);

}  // namespace scorvane
