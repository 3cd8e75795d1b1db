#include "reasons/reasons_reports.h"

#include <algorithm>
#include <cstddef>

#include "model/class_lists.h"
#include "model/reasons_places.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

// Bands are separated so that each starts a printed page of its own.
void appendBandBreak(std::string& out) {
  out += kPageBreakLine;
  out += "\n\n\n";
}

constexpr const char* kRoomGap = "      ";

void appendHeading(std::string& out, const ReasonsBand& band, const char* gap) {
  for (std::int32_t g = band.first; g < band.end; ++g) {
    appendFormat(out, "     %-3d %s", g + 1, gap);
  }
  out += '\n';
  for (std::int32_t g = band.first; g < band.end; ++g) {
    appendFormat(out, "   %5.5s %s", "-----", gap);
  }
  out += '\n';
}

bool isRowEmpty(const ReasonsOrder& order, const ReasonsBand& band, std::int32_t row) {
  for (std::int32_t g = band.first; g < band.end; ++g) {
    if (order.cell(row, g) != kNobody) return false;
  }
  return true;
}

// Odd but required, docs/required-behaviour.md: reasons-order-ends-at-empty-row
void appendGrid(std::string& out, const ReasonsOrder& order, const ReasonsBand& band,
                const char* gap) {
  for (std::int32_t row = 0; !isRowEmpty(order, band, row); ++row) {
    for (std::int32_t g = band.first; g < band.end; ++g) {
      const std::int32_t contestant = order.cell(row, g);
      if (contestant == kNobody) {
        appendFormat(out, "    %-5s", "     ");
      } else {
        appendFormat(out, "    %-5d", contestant);
      }
      out += gap;
    }
    out += '\n';
  }
}

void appendUnassigned(std::string& out, const Contest& contest) {
  const std::vector<ContestantNumber> unassigned = unassignedSpeakers(contest);
  if (!unassigned.empty()) out += "\n\t\tContestants Not Assigned in Reasons Order\n";
  for (const ContestantNumber number : unassigned) out += speakerLine(contest, number) + "\n";
}

void appendRoomBoxes(std::string& out, const ReasonsBand& band) {
  const auto appendLine = [&](const char* perGroup, const char* end) {
    for (std::int32_t g = band.first; g < band.end; ++g) out += perGroup;
    out += end;
  };
  appendFormat(out, "\n\n%s\n", "Room Number");
  appendLine("---------------", "-\n");
  for (int line = 0; line < 3; ++line) appendLine("|              ", "|\n");
  appendLine("---------------", "-\n");
}

void appendClassOrder(std::string& out, const Contest& contest, const ReasonsBand& band) {
  const std::vector<std::int32_t> classes = reasonsClasses(contest.classes);
  for (std::int32_t g = band.first; g < band.end; ++g) {
    // Odd but required, docs/required-behaviour.md: class-order-restarts-in-every-band
    const auto k = static_cast<std::size_t>(g - band.first);
    for (std::size_t i = 0; i < classes.size(); ++i) {
      const std::int32_t heard = classes[(k + i) % classes.size()];
      const char* name = contest.classes.name(heard).c_str();
      if (i == 0) {
        appendFormat(out, "%15.15s %2d    %2d.  %s\n", "Reasons Group", g + 1, heard + 1, name);
      } else {
        appendFormat(out, "%15.15s       %2d.  %s\n", " ", heard + 1, name);
      }
    }
    out += '\n';
  }
}

void appendClassOrderByTurns(std::string& out, const Contest& contest, const ReasonsBand& band) {
  const std::vector<std::int32_t> classes = reasonsClasses(contest.classes);
  const auto width = static_cast<std::size_t>(band.width());
  for (std::size_t i = 0; i < classes.size(); ++i) {
    for (std::size_t c = 0; c < width; ++c) {
      // Odd but required, docs/required-behaviour.md: class-order-of-the-room-form
      const std::int32_t heard = classes[(i * (width + 1) + c) % classes.size()];
      appendFormat(out, "%2d-%-11.11s ", heard + 1, contest.classes.name(heard).c_str());
    }
    out += '\n';
  }
}

// The sheets.

void appendClassLine(std::string& out, const JudgingClasses& classes, std::int32_t classIndex) {
  const PlacingLetter official = classes.official(classIndex);
  const auto order = orderOfLetter(official);
  const Cuts cuts = classes.cuts(classIndex);
  appendFormat(out, "%d. %s, Official Score %c (%d%d%d%d), Cuts (%d,%d,%d)\n\n", classIndex + 1,
               classes.name(classIndex).c_str(), official, order[0], order[1], order[2], order[3],
               cuts.cut1, cuts.cut2, cuts.cut3);
}

void appendBandHeader(std::string& out, const ReasonsBand& band) {
  out += '\n';
  for (std::int32_t g = band.first; g < band.end; ++g) appendFormat(out, "%3d Score  ", g + 1);
  out += '\n';
  for (std::int32_t g = band.first; g < band.end; ++g) out += " --------- ";
  out += "\n\n";
}

void appendNumber(std::string& out, ReasonsSheet sheet, std::int32_t contestant,
                  const ScoreRecord& record) {
  if (contestant == kNobody) {
    appendFormat(out, " %-4c      ", ' ');
  } else if (sheet == ReasonsSheet::order) {
    appendFormat(out, " %-4d_____ ", contestant);
  } else {
    appendFormat(out, " %-4d__%2d_ ", contestant, record.reasonsScore);
  }
}

void appendPlacing(std::string& out, ReasonsSheet sheet, std::int32_t contestant,
                   const ScoreRecord& record) {
  if (contestant == kNobody || sheet == ReasonsSheet::verification) {
    out += "           ";
    return;
  }
  const auto order = orderOfLetter(record.letter);
  appendFormat(out, " %c %d%d%d%d %2d ", record.letter, order[0], order[1], order[2], order[3],
               record.placingScore);
}

void appendRow(std::string& out, const Contest& contest, ReasonsSheet sheet,
               std::int32_t classIndex, const ReasonsBand& band, std::int32_t row) {
  for (const auto append : {appendNumber, appendPlacing}) {
    for (std::int32_t g = band.first; g < band.end; ++g) {
      const std::int32_t contestant = contest.reasonsOrder.cell(row, g);
      append(out, sheet, contestant, scoreRecord(contest, contestant, classIndex));
    }
    out += '\n';
  }
  out += '\n';
}

}  // namespace

std::vector<ReasonsBand> reasonsBands(std::int32_t groups) {
  constexpr std::int32_t kWidest = 8;
  const std::int32_t shown = std::clamp(groups, 0, kMostReasonsGroupsShown);
  const std::int32_t count = std::max((shown + kWidest - 1) / kWidest, 1);
  const std::int32_t width = (shown + count - 1) / count;
  std::vector<ReasonsBand> bands;
  bands.reserve(static_cast<std::size_t>(count));
  for (std::int32_t b = 0; b < count; ++b) {
    bands.push_back({b * width, std::min((b + 1) * width, shown)});
  }
  return bands;
}

std::string reasonsOrderReport(const Contest& contest, ReasonsOrderForm form) {
  const bool room = form == ReasonsOrderForm::room;
  const char* gap = room ? kRoomGap : "";
  std::string out = room ? formatText("\n\n%50.50s\n\n", "Reasons Order and Room Assignments")
                         : formatText("\n\n%30.30s\n\n", "Reasons Order");
  for (const ReasonsBand& band : reasonsBands(contest.settings.numReasonsGroups)) {
    if (closeIfTooLong(out)) break;
    if (band.first > 0) appendBandBreak(out);
    appendHeading(out, band, gap);
    appendGrid(out, contest.reasonsOrder, band, gap);
    if (band.first == 0) appendUnassigned(out, contest);
    if (room) appendRoomBoxes(out, band);
    appendFormat(out, "\n\n%s\n", "Reasons Class Order");
    appendFormat(out, "%s\n\n", "-------------------");
    if (room) {
      appendClassOrderByTurns(out, contest, band);
    } else {
      appendClassOrder(out, contest, band);
    }
    out += '\n';
  }
  return out;
}

std::optional<std::string> reasonsSheet(const Contest& contest, ReasonsSheet sheet,
                                        std::int32_t classIndex) {
  const ReasonsOrder& order = contest.reasonsOrder;
  if (order.empty() || !contest.classes.hasReasons(classIndex)) return std::nullopt;
  std::string out = sheet == ReasonsSheet::order ? "Reasons Order Score Sheet\n\n"
                                                 : "Reasons Score Verification Sheet\n\n";
  appendClassLine(out, contest.classes, classIndex);
  for (const ReasonsBand& band : reasonsBands(contest.settings.numReasonsGroups)) {
    if (closeIfTooLong(out)) break;
    if (band.first > 0) {
      out += "\n\n";
      appendBandBreak(out);
    }
    appendBandHeader(out, band);
    // Odd but required, docs/required-behaviour.md: sheets-end-with-the-first-group
    for (std::int32_t row = 0; order.cell(row, 0) != kNobody; ++row) {
      appendRow(out, contest, sheet, classIndex, band, row);
    }
  }
  return out;
}

}  // namespace scorvane
