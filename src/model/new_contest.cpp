#include "model/new_contest.h"

#include <array>
#include <ctime>

namespace scorvane {

std::string todaysDate() {
  const std::time_t now = std::time(nullptr);
  const std::tm* local = std::localtime(&now);
  if (local == nullptr) return {};
  std::array<char, 64> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), "%B %d, %Y", local);
  return {text.data(), length};
}

Contest newContest() {
  Contest contest;
  contest.settings.contestName = "Judging Contest";
  contest.settings.divisionName = "Junior Division";
  contest.settings.contestDate = todaysDate();
  return contest;
}

}  // namespace scorvane
