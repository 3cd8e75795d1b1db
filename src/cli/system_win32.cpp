#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>

#include "cli/system.h"

namespace scorvane {

void makeStandardOutputBinary() {
  _setmode(_fileno(stdout), _O_BINARY);
}

void expectMemory(std::size_t /*bytes*/) {}

void makeFolder(const std::string& path) {
  CreateDirectoryA(path.c_str(), nullptr);
}

}  // namespace scorvane
