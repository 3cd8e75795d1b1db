#include <sys/stat.h>

#include "cli/system.h"

namespace scorvane {

void makeStandardOutputBinary() {}

void makeFolder(const std::string& path) {
  constexpr mode_t kEverything = 0777;  // less what the user's mask takes away
  mkdir(path.c_str(), kEverything);
}

}  // namespace scorvane
