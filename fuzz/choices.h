// Choices that a fuzzer's bytes make.
#pragma once

#include <cstddef>
#include <cstdint>

namespace scorvane {

/// Takes choices out of the fuzzer's bytes, two at a time; the first ones when there are no more.
class Choices {
 public:
  Choices(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

  /// A number from 0 on below the argument, which is not 0.
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

}  // namespace scorvane
