// Any bytes as a contest file: they are read or refused, and what was read is written so that it
// reads back the same.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "fuzz/checks.h"
#include "storage/contest_format.h"
#include "storage/contest_reader.h"
#include "storage/contest_writer.h"

namespace scorvane {

namespace {

void requireShortLines(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = bytes.find(kLineEnd) + kLineEnd.size();
    require(length <= kMaxContestLine, "no saved line is too long");
    bytes.remove_prefix(length);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto reading = readContest(bytes);
  const Contest* contest = std::get_if<Contest>(&reading);
  if (contest == nullptr) return 0;
  // The first saving may leave out what the format has no room for; from then on nothing changes.
  const std::string saved = writeContest(*contest);
  requireShortLines(saved);
  const Contest loaded = readAgain(saved);
  require(loaded.contestantNames.size() == contest->contestantNames.size(), "contestants stay");
  require(loaded.classes.count() == contest->classes.count(), "classes stay");
  require(readAgain(writeContest(loaded)) == loaded, "saving again changes nothing");
  return 0;
}

}  // namespace scorvane
