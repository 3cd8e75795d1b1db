// What a report can be asked for besides the contest: filled by a dialog in the window and by the
// options of the command line, and read by the report builders alone.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// What a ranking adds up.
enum class ScoreKind {
  overall,    ///< placing, reasons and questions scores together
  placings,   ///< placing scores
  reasons,    ///< reasons scores
  questions,  ///< questions scores
};

inline constexpr std::array kScoreKinds = {ScoreKind::overall, ScoreKind::placings,
                                           ScoreKind::reasons, ScoreKind::questions};

/// The kind's word in headings: "Overall", "Placings", "Reasons" or "Questions".
[[nodiscard]] constexpr const char* scoreKindWord(ScoreKind kind) {
  constexpr std::array kWords = {"Overall", "Placings", "Reasons", "Questions"};
  return kWords.at(static_cast<std::size_t>(kind));
}

/// Class indexes (from 0) that a ranked score is summed over.
using ClassSet = std::vector<std::int32_t>;

/// Each report reads the members that it asks for and no others.
struct ReportRequest {
  std::optional<std::int32_t> classIndex = {};  ///< of the reasons sheets, from 0
  std::optional<std::int32_t> round = {};       ///< of the round verification, from 0

  // The comparison.
  std::shared_ptr<const Contest> other = {};
  std::string otherName = {};

  // The rankings.
  ScoreKind kind = ScoreKind::overall;
  bool team = false;  ///< teams instead of individuals, in the custom report
  ClassSet classes = {};
  std::int32_t numToReport = 0;  ///< rows, or per cent of them
  bool percent = false;
  std::string title = {};

  friend bool operator==(const ReportRequest&, const ReportRequest&) = default;
};

}  // namespace scorvane
