// Controls of the Setup Contest dialog.
#pragma once

#include "ui/dialog.h"

namespace scorvane {

namespace setup_contest {

inline constexpr int kDialog = 134;

inline constexpr ControlId kContestName = 1001;
inline constexpr ControlId kDivisionName = 1002;
inline constexpr ControlId kContestDate = 1003;
inline constexpr ControlId kStartNumber = 1004;
inline constexpr ControlId kNumberToReport = 1037;
inline constexpr ControlId kReportPercent = 1044;
inline constexpr ControlId kGroups = 1050;
inline constexpr ControlId kReasonsTakers = 1032;
inline constexpr ControlId kNumberToScore = 1038;
inline constexpr ControlId kPerTeam = 1039;
inline constexpr ControlId kTotalPerTeam = 1040;
inline constexpr ControlId kCategoryText = 1072;
inline constexpr ControlId kCategoryList = 1071;
inline constexpr ControlId kAddCategory = 1073;
inline constexpr ControlId kUpdateCategory = 1074;
inline constexpr ControlId kDeleteCategory = 1075;
inline constexpr ControlId kDone = kOkId;
inline constexpr ControlId kCancel = kCancelId;

}  // namespace setup_contest

}  // namespace scorvane
