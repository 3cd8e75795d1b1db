// Any edits on two sides of any contest, merged.
#include <cstddef>
#include <cstdint>

#include "fuzz/checks.h"
#include "fuzz/choices.h"
#include "model/new_contest.h"
#include "tests/model/merge_laws.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace scorvane;
  Choices choices(data, size);
  const Choose choose = [&choices](std::uint32_t below) { return choices.next(below); };
  const auto edited = [&](Contest contest, std::uint32_t most) {
    for (std::uint32_t left = choose(most); left > 0; --left) editAtRandom(contest, choose);
    return savedAndLoaded(std::move(contest));
  };
  const Contest base = edited(savedAndLoaded(newContest()), 40);
  const Contest ours = edited(base, 20);
  const Contest theirs = edited(base, 20);
  const std::string broken = brokenMergeLaw(base, ours, theirs);
  require(broken.empty(), broken.c_str());
  return 0;
}
