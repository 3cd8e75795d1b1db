// scorvane-report: prints any report of a contest file without a window.
#include <cstdio>

int main() {
  std::puts("scorvane-report " SCORVANE_VERSION);
  return 0;
}
