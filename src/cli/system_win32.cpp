#include <fcntl.h>
#include <io.h>
#include <windows.h>
// The shell needs windows.h before it.
#include <shellapi.h>

#include <cstdio>
#include <cstdlib>
#include <exception>

#include "cli/system.h"
#include "text/unicode.h"
#include "text/unicode_win32.h"

// The library's own puts an exception's name into readable form, with a twentieth of a megabyte.
void __gnu_cxx::__verbose_terminate_handler() {
  std::abort();
}

namespace scorvane {

void makeStandardOutputBinary() {
  _setmode(_fileno(stdout), _O_BINARY);
}

bool isOutputTerminal() {
  return _isatty(_fileno(stdout)) != 0;
}

// The words that main() gets are in 8-bit text, bent to what that has.
std::vector<std::string> commandLineWords(int /*count*/, char** /*words*/) {
  int count = 0;
  wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> found;
  for (int i = 1; i < count; ++i) found.push_back(utf8OfWide(words[i]));
  LocalFree(words);
  return found;
}

std::string contestText(const std::string& word) {
  return shownPath(word);
}

void expectMemory(std::size_t /*bytes*/) {}

}  // namespace scorvane
