#include "tests/support/approved.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <variant>

#include "storage/contest_reader.h"

namespace {

std::string_view lineAround(std::string_view text, std::size_t lineStart) {
  return text.substr(lineStart, text.find('\n', lineStart) - lineStart);
}

bool isRenewing() {
  const char* renew = std::getenv("SCORVANE_RENEW");
  return renew != nullptr && std::string_view(renew) == "1";
}

}  // namespace

std::string firstDifference(std::string_view expected, std::string_view actual) {
  if (expected == actual) return {};
  const auto [inExpected, inActual] =
      std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
  const auto place = static_cast<std::size_t>(inExpected - expected.begin());
  const std::string_view same = expected.substr(0, place);
  const std::size_t lineStart = same.find_last_of('\n') + 1;  // npos + 1 is 0: the first line
  const auto line = 1 + std::count(same.begin(), same.end(), '\n');
  std::string report = "line " + std::to_string(line) + ", column " +
                       std::to_string(place - lineStart + 1) + ":\nexpected: ";
  report.append(lineAround(expected, lineStart)).append("\nactual:   ");
  return report.append(lineAround(actual, lineStart));
}

void expectApproved(std::string_view report, const std::string& name) {
  const std::string path = std::string(SOURCE_DIR "/tests/") + name;
  if (isRenewing()) {
    std::ofstream file(path, std::ios::binary);
    ASSERT_TRUE(file << report) << "cannot write " << path;
    return;
  }
  std::ifstream file(path, std::ios::binary);
  ASSERT_TRUE(file) << "no approved text " << path << "; SCORVANE_RENEW=1 writes it";
  const std::string approved((std::istreambuf_iterator<char>(file)), {});
  const std::string difference = firstDifference(approved, report);
  EXPECT_TRUE(difference.empty()) << name << ", " << difference;
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
