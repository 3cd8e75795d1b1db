#include "exchange/class_chart.h"

#include <algorithm>

#include "text/format.h"

namespace scorvane {

namespace {

constexpr std::int32_t kPerBar = 5;
constexpr std::size_t kBars = kTopScore / kPerBar + 1;
constexpr int kBarWidth = 22;
constexpr int kBase = 70;     // the bars stand here
constexpr int kHighest = 56;  // and reach up so far

using Bars = std::array<std::int64_t, kBars>;

Bars barsOf(const ClassStatistics& statistics) {
  Bars bars{};
  for (const GivenPlacing& given : statistics.given) {
    const std::int32_t score = std::clamp(given.score, 0, kTopScore);
    bars.at(static_cast<std::size_t>(score / kPerBar)) += given.count;
  }
  return bars;
}

// "3 scored 50, 10 scored 45 to 49, ...".
void appendWords(std::string& out, const Bars& bars, std::int32_t lowest) {
  const char* comma = "";
  for (std::size_t i = kBars; i-- > 0;) {
    if (bars.at(i) == 0) continue;
    const int from = i == 0 ? std::min(lowest, 0) : static_cast<int>(i) * kPerBar;
    appendFormat(out, "%s%lld scored %d", comma, static_cast<long long>(bars.at(i)), from);
    if (from < kTopScore) appendFormat(out, " to %d", static_cast<int>(i + 1) * kPerBar - 1);
    comma = ", ";
  }
}

}  // namespace

void appendClassChart(std::string& out, const ClassStatistics& statistics) {
  const Bars bars = barsOf(statistics);
  const std::int64_t most = *std::max_element(bars.begin(), bars.end());
  if (most == 0) return;
  const int number = statistics.classIndex + 1;
  appendFormat(out,
               "<svg viewBox=\"0 0 242 84\" role=\"img\" aria-labelledby=\"g%d\"><title "
               "id=\"g%d\">",
               number, number);
  appendWords(out, bars, statistics.lowest);
  out += "</title><path d=\"M0 70h242v1H0z";
  for (std::size_t i = 0; i < kBars; ++i) {
    const auto height = static_cast<int>((bars.at(i) * kHighest + most - 1) / most);
    if (height == 0) continue;
    appendFormat(out, "M%d %dv-%dh%dv%dz", static_cast<int>(i) * kBarWidth + 2, kBase, height,
                 kBarWidth - 4, height);
  }
  out += "\"/>";
  for (std::size_t i = 0; i < kBars; ++i) {
    const int middle = static_cast<int>(i) * kBarWidth + kBarWidth / 2;
    appendFormat(out, "<text x=\"%d\" y=\"80\">%d</text>", middle, static_cast<int>(i) * kPerBar);
    if (bars.at(i) == 0) continue;
    const auto height = static_cast<int>((bars.at(i) * kHighest + most - 1) / most);
    appendFormat(out, "<text x=\"%d\" y=\"%d\">%lld</text>", middle, kBase - height - 3,
                 static_cast<long long>(bars.at(i)));
  }
  out += "</svg>\n";
}

}  // namespace scorvane
