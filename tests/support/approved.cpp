#include "tests/support/approved.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <variant>

#include "storage/contest_reader.h"

namespace scorvane {

void expectApproved(const std::string& report, const std::string& name) {
  const char* renew = std::getenv("SCORVANE_RENEW");
  if (renew != nullptr && std::string_view(renew) == "1") {
    std::ofstream file(SOURCE_DIR "/tests/" + name, std::ios::binary);
    ASSERT_TRUE(file << report) << "cannot write " << name;
    return;
  }
  const std::string approved = sourceFile("tests/" + name);
  if (approved == report) return;
  std::istringstream expectedLines(approved), actualLines(report);
  std::string expected, actual;
  int line = 0;
  do {
    ++line;
    if (!std::getline(expectedLines, expected)) expected.clear();
    if (!std::getline(actualLines, actual)) actual.clear();
  } while (expected == actual && (expectedLines || actualLines));
  const auto place =
      std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end()).first;
  ADD_FAILURE() << name << ", line " << line << ", column " << place - expected.begin() + 1
                << ":\nexpected: " << expected << "\nactual:   " << actual
                << "\nSCORVANE_RENEW=1 writes the approved text anew.";
}

std::string sourceFile(const std::string& name) {
  std::ifstream file(SOURCE_DIR "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

Contest contestOfFile(const std::string& name) {
  auto reading = readContest(sourceFile(name));
  if (auto* contest = std::get_if<Contest>(&reading)) return std::move(*contest);
  ADD_FAILURE() << "no contest in " << name;
  return {};
}

}  // namespace scorvane
