#include <fcntl.h>
#include <io.h>
#include <cstdio>

#include "cli/system.h"

namespace scorvane {

void makeStandardOutputBinary() {
  _setmode(_fileno(stdout), _O_BINARY);
}

bool isOutputTerminal() {
  return _isatty(_fileno(stdout)) != 0;
}

void expectMemory(std::size_t /*bytes*/) {}

}  // namespace scorvane
