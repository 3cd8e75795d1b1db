// Any bytes as a contest file: they are read or refused, and what was read is written so that it
// reads back the same.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <variant>

#include "storage/contest_format.h"
#include "storage/contest_reader.h"
#include "storage/contest_writer.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

void requireShortLines(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = bytes.find(kLineEnd) + kLineEnd.size();
    require(length <= kMaxContestLine);
    bytes.remove_prefix(length);
  }
}

Contest readAgain(const std::string& bytes) {
  auto reading = readContest(bytes);
  require(std::holds_alternative<Contest>(reading));
  return std::get<Contest>(std::move(reading));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto reading = readContest({reinterpret_cast<const char*>(data), size});
  const Contest* contest = std::get_if<Contest>(&reading);
  if (contest == nullptr) return 0;
  // The first saving may leave out what the format has no room for; from then on nothing changes.
  const std::string saved = writeContest(*contest);
  requireShortLines(saved);
  const Contest loaded = readAgain(saved);
  require(loaded.contestantNames.size() == contest->contestantNames.size());
  require(loaded.classes.count() == contest->classes.count());
  require(readAgain(writeContest(loaded)) == loaded);
  return 0;
}
