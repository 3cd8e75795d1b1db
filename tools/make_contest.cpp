// make_contest: writes an invented contest of any size as a contest file.
#include <array>
#include <charconv>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "storage/contest_writer.h"
#include "storage/file.h"
#include "storage/safe_save.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

constexpr const char* kUsage =
    "usage: make_contest [OPTION VALUE]...\n"
    "Writes an invented contest, the same for the same options, to standard output.\n"
    "  --output FILE       write to a file instead\n"
    "  --seed N            another contest for each number (1)\n"
    "  --contestants N     member slots of all teams, rounded up to whole teams (240)\n"
    "  --classes N         judging classes (12)\n"
    "  --per-team N        regular members of a team (4)\n"
    "  --alternates N      further slots of a team, most of them empty (0)\n"
    "  --empty PERCENT     regular slots without a person (2)\n"
    "  --reasons N         classes with reasons (4)\n"
    "  --questions N       classes with questions (2)\n"
    "  --categories N      scoring categories, 0 to 6 (4)\n"
    "  --groups N          rotation groups, 1 to 26 (8)\n"
    "  --missing PERCENT   scores that are not entered yet (0)\n"
    "  --mistyped N        the class whose official placing is wrong, 0 for none (0)\n"
    "  --name TEXT         contest name\n"
    "  --division TEXT     division name\n"
    "  --date TEXT         contest date\n";

struct NumberOption {
  std::string_view name;
  std::int32_t ContestPlan::*field;
  std::int32_t least;
  std::int32_t most;
};

constexpr std::array<NumberOption, 11> kNumberOptions = {{
    {"--contestants", &ContestPlan::contestants, 0, 10'000'000},
    {"--classes", &ContestPlan::classes, 0, 10'000},
    {"--per-team", &ContestPlan::perTeam, 1, 50},
    {"--alternates", &ContestPlan::alternates, 0, 20},
    {"--empty", &ContestPlan::emptyPercent, 0, 100},
    {"--reasons", &ContestPlan::reasonsClasses, 0, 10'000},
    {"--questions", &ContestPlan::questionsClasses, 0, 10'000},
    {"--categories", &ContestPlan::categories, 0, kMaxPlannedCategories},
    {"--groups", &ContestPlan::groups, 1, 26},
    {"--missing", &ContestPlan::missingPercent, 0, 100},
    {"--mistyped", &ContestPlan::mistypedClass, 0, 10'000},
}};

struct Order {
  ContestPlan plan;
  std::string output;
};

template <typename Number>
bool parse(std::string_view text, Number& number) {
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  return result.ec == std::errc() && result.ptr == end;
}

/// Takes one option; false when there is none of that name or its value does not serve.
bool take(Order& order, std::string_view name, std::string_view value) {
  for (const NumberOption& option : kNumberOptions) {
    if (name != option.name) continue;
    std::int32_t& field = order.plan.*option.field;
    return parse(value, field) && field >= option.least && field <= option.most;
  }
  if (name == "--seed") return parse(value, order.plan.seed);
  if (name == "--name") {
    order.plan.contestName = value;
  } else if (name == "--division") {
    order.plan.divisionName = value;
  } else if (name == "--date") {
    order.plan.contestDate = value;
  } else if (name == "--output") {
    order.output = value;
  } else {
    return false;
  }
  return true;
}

std::optional<Order> parseArguments(int count, char** arguments) {
  Order order;
  for (int i = 1; i < count; i += 2) {
    if (i + 1 == count || !take(order, arguments[i], arguments[i + 1])) return std::nullopt;
  }
  return order;
}

}  // namespace

}  // namespace scorvane

int main(int count, char** arguments) {
  using namespace scorvane;
  const auto order = parseArguments(count, arguments);
  if (!order) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  const std::string bytes = writeContest(makeContest(order->plan));
  if (!order->output.empty()) {
    if (saveSafely(systemFiles(), order->output, bytes)) return 0;
    std::fprintf(stderr, "make_contest: cannot write %s\n", order->output.c_str());
    return 1;
  }
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size();
  return written && std::fflush(stdout) == 0 ? 0 : 1;
}
