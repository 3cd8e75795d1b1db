#include "fuzz/checks.h"

#include <cstdio>
#include <cstdlib>
#include <utility>
#include <variant>

#include "storage/contest_reader.h"

namespace scorvane {

void require(bool holds, std::string_view promise) {
  if (holds) return;
  std::fprintf(stderr, "BROKEN PROMISE: %.*s\n", static_cast<int>(promise.size()), promise.data());
  std::abort();
}

Contest readAgain(const std::string& bytes) {
  auto reading = readContest(bytes);
  require(std::holds_alternative<Contest>(reading), "what was saved can be loaded");
  return std::get<Contest>(std::move(reading));
}

}  // namespace scorvane
