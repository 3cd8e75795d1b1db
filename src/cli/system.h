// The little that scorvane-report needs of the operating system besides files.
#pragma once

#include <cstddef>
#include <string>

namespace scorvane {

/// Keeps the system from changing line ends on standard output.
void makeStandardOutputBinary();

/// Prepares for a need of about so many bytes of memory, so that they come faster. Nothing depends
/// on it.
void expectMemory(std::size_t bytes);

/// Makes a folder; one that is there already is fine. What cannot be made shows when it is used.
void makeFolder(const std::string& path);

}  // namespace scorvane
