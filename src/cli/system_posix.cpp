#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <memory>

#include "cli/system.h"

namespace scorvane {

void makeStandardOutputBinary() {}

bool isOutputTerminal() {
  return isatty(STDOUT_FILENO) != 0;
}

// The system interrupts the program whenever it touches a page of 4 KiB for the first time. Without
// large pages 10,000 contestants take 1.6 times and 100,000 take 1.9 times as long.
void expectMemory(std::size_t bytes) {
  constexpr std::size_t kLargePage = std::size_t{2} << 20;
  if (bytes < kLargePage) return;
  mallopt(M_MMAP_MAX, 0);         // large blocks are to come out of the memory prepared here,
  mallopt(M_TRIM_THRESHOLD, -1);  // which is kept when it is free
  void* const block = std::malloc(bytes);
  void* aligned = block;
  if (block != nullptr && std::align(kLargePage, kLargePage, aligned, bytes) != nullptr) {
    madvise(aligned, bytes, MADV_HUGEPAGE);
  }
  std::free(block);
}

std::vector<std::string> commandLineWords(int count, char** words) {
  return {words + (count > 0 ? 1 : 0), words + count};
}

std::string contestText(const std::string& word) {
  return word;
}

}  // namespace scorvane
