#include "results/awards_packet.h"

#include <algorithm>
#include <string_view>
#include <tuple>
#include <utility>

#include "results/award_lists.h"
#include "results/high_reports.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

// Every printed page repeats a report's first four lines at its head: they must fit every list.
constexpr const char* kOpening = "Awards Packet\n\nEach list begins on a page of its own.\n\n";
constexpr const char* kTooMany = "This contest has too many categories for this report.\n";

bool isCategory(const ReportRequest& request, const Contest& contest) {
  return request.classes.size() != static_cast<std::size_t>(contest.classes.count());
}

std::string textOf(const Contest& contest, const ReportRequest& request) {
  return request.team ? highTeamReport(contest, request) : highIndividualReport(contest, request);
}

// What a file's name can have on every system.
std::string inFileName(std::string text) {
  constexpr std::size_t kLongest = 40;
  text.resize(std::min(text.size(), kLongest));
  std::replace_if(
      text.begin(), text.end(),
      [](char c) {
        return c < ' ' || c > '~' ||
               std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
      },
      '-');
  return text;
}

// "place 3", "places 1, 4 to 7 and 9"; of parts that differ, the heading is the first one.
std::string placesOf(const std::vector<std::size_t>& places) {
  std::vector<std::string> runs;
  for (std::size_t i = 0; i < places.size();) {
    std::size_t last = i;
    while (last + 1 < places.size() && places[last + 1] == places[last] + 1) ++last;
    runs.push_back(std::to_string(places[i]));
    if (last > i) runs.back() += " to " + std::to_string(places[last]);
    i = last + 1;
  }
  std::string text = places.size() == 1 ? "place " : "places ";
  constexpr std::size_t kMostRuns = 4;
  const std::size_t shown = std::min(runs.size(), kMostRuns);
  for (std::size_t i = 0; i < shown; ++i) {
    if (i > 0) text += i + 1 == runs.size() ? " and " : ", ";
    text += runs[i];
  }
  return shown == runs.size() ? text : text + " and more";
}

std::string changeOf(const std::vector<std::string>& now, const std::vector<std::string>& before) {
  if (now == before) return "unchanged";
  std::vector<std::size_t> places;
  const std::size_t most = std::max(now.size(), before.size());
  for (std::size_t place = 1; place < most; ++place) {
    const bool same = place < now.size() && place < before.size() && now[place] == before[place];
    if (!same) places.push_back(place);
  }
  return places.empty() ? "heading" : placesOf(places);
}

// Lists of the same name in their order, as categories can share one.
std::vector<ReportRequest>::iterator sameList(const ReportRequest& list,
                                              std::vector<ReportRequest>& others) {
  return std::find_if(others.begin(), others.end(), [&](const ReportRequest& other) {
    return std::tie(list.kind, list.team, list.title) ==
           std::tie(other.kind, other.team, other.title);
  });
}

}  // namespace

std::string awardsPacket(const Contest& contest) {
  const auto lists = printedLists(contest);
  if (!lists) return kTooMany;
  std::string packet = kOpening;
  for (const ReportRequest& request : *lists) {
    if (&request != &lists->front()) packet.append(kPageBreakLine).append("\n");
    packet += textOf(contest, request);
    if (closeIfTooLong(packet, kLongestHandOut)) break;
  }
  return packet;
}

std::optional<std::vector<CategoryFile>> categoryFiles(const Contest& contest) {
  const auto lists = printedLists(contest);
  if (!lists) return std::nullopt;
  std::vector<CategoryFile> files;
  int count = 0;
  for (const ReportRequest& request : *lists) {
    if (!isCategory(request, contest)) continue;
    if (!request.team) ++count;
    files.push_back({formatText("Category %d - %s - %s", count, inFileName(request.title).c_str(),
                                request.team ? "Teams" : "Individuals"),
                     request});
  }
  return files;
}

std::string changedLists(const Contest& now, const Contest& before) {
  const auto lists = printedLists(now);
  auto others = printedLists(before);
  std::string out = "Places that changed in the awards lists:\n\n";
  if (!lists || !others) return kTooMany;
  const auto line = [&out](const ReportRequest& list, const std::string& change) {
    appendFormat(out, "%-32.32s %.47s\n", listName(list).c_str(), change.c_str());
  };
  for (const ReportRequest& list : *lists) {
    const auto other = sameList(list, *others);
    if (other == others->end()) {
      line(list, "new");
      continue;
    }
    line(list, changeOf(highReportParts(now, list), highReportParts(before, *other)));
    others->erase(other);
  }
  for (const ReportRequest& list : *others) line(list, "no longer given");
  return out;
}

}  // namespace scorvane
