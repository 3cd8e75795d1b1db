// Any edits on two sides of any contest, merged.
#include <cstddef>
#include <cstdint>

#include "fuzz/checks.h"
#include "model/new_contest.h"
#include "tests/model/merge_laws.h"

namespace scorvane {

namespace {

/// Takes choices out of the fuzzer's bytes, two at a time; the first ones when there are no more.
class Choices {
 public:
  Choices(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

  std::uint32_t next(std::uint32_t below) {
    if (size_ < 2) return 0;
    const std::uint32_t value = data_[0] * 256U + data_[1];
    data_ += 2;
    size_ -= 2;
    return value % below;
  }

 private:
  const std::uint8_t* data_;
  std::size_t size_;
};

}  // namespace

}  // namespace scorvane

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
