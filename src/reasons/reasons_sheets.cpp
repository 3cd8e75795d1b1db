#include "reasons/reasons_sheets.h"

#include "reasons/reasons_bands.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

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
    // Every band deliberately ends with the first group's speakers, even where a group of the band
    // has more of them.
    for (std::int32_t row = 0; order.cell(row, 0) != kNobody; ++row) {
      appendRow(out, contest, sheet, classIndex, band, row);
    }
  }
  return out;
}

}  // namespace scorvane
