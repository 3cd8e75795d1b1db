#include "reasons/reasons_order_report.h"

#include <cstdint>
#include <vector>

#include "model/class_lists.h"
#include "reasons/reasons_bands.h"
#include "reasons/speakers.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

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

// Ends at the first row without anybody, even when later rows hold contestants.
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
    // Counted within the band, deliberately: the first group of every band starts with the first
    // reasons class.
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
      // Deliberately this index: it is the rotation of the plain form only when the band is as wide
      // as there are reasons classes.
      const std::int32_t heard = classes[(i * (width + 1) + c) % classes.size()];
      appendFormat(out, "%2d-%-11.11s ", heard + 1, contest.classes.name(heard).c_str());
    }
    out += '\n';
  }
}

}  // namespace

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

}  // namespace scorvane
