// What a report may need to be asked for besides the contest.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace scorvane {

/// What the Custom Report dialog asks; what is not given defaults as that dialog does.
struct CustomReportRequest {
  std::string title;
  std::vector<std::int32_t> classes;  ///< class indexes from 0
  int kind = 0;                       ///< 0 overall, 1 placings, 2 reasons, 3 questions
  std::optional<std::int32_t> numToReport;
  std::optional<bool> percent;
  bool team = false;
};

struct ReportRequest {
  std::optional<std::int32_t> classIndex;  ///< from 0
  std::optional<std::int32_t> round;       ///< from 0
  CustomReportRequest custom;
};

}  // namespace scorvane
