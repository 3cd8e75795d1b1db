// Markup and escaped text, written one after the other.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "model/placing.h"
#include "text/number.h"
#include "text/windows_1252.h"

namespace scorvane {

class PageWriter {
 public:
  PageWriter& raw(std::string_view markup) {
    out_ += markup;
    return *this;
  }
  PageWriter& text(std::string_view text) {
    appendMarkup(out_, text);
    return *this;
  }
  PageWriter& number(std::int64_t value) {
    appendNumber(out_, value);
    return *this;
  }
  /// "1342 (D)"; a letter without an order as it is.
  PageWriter& placing(PlacingLetter letter) {
    if (!isOrderLetter(letter)) return text({&letter, 1});
    for (const std::int32_t animal : orderOfLetter(letter)) number(animal);
    return raw(" (").text({&letter, 1}).raw(")");
  }

  /// Ten thousand contestants' cards are a fifth of this. Only a damaged file asks for more.
  [[nodiscard]] bool isTooLong() const { return out_.size() > 128U << 20U; }
  [[nodiscard]] std::string& out() { return out_; }

 private:
  std::string out_;
};

}  // namespace scorvane
