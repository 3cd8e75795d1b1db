// Controls of the Setup Classes dialog.
#pragma once

#include <array>

#include "ui/dialog.h"

namespace scorvane {

namespace setup_classes {

inline constexpr int kDialog = 135;

inline constexpr ControlId kClassName = 1008;
inline constexpr ControlId kReasons = 1009;
inline constexpr ControlId kQuestions = 1055;
inline constexpr ControlId kOfficial = 1010;
inline constexpr ControlId kOfficialOrder = 1015;
inline constexpr ControlId kCut1 = 1011;
inline constexpr ControlId kCut2 = 1012;
inline constexpr ControlId kCut3 = 1013;
inline constexpr ControlId kCategory = 1075;
inline constexpr ControlId kNameList = 1016;
inline constexpr ControlId kFlagsList = 1017;
inline constexpr ControlId kOfficialList = 1018;
inline constexpr ControlId kCutsList = 1019;
inline constexpr ControlId kCategoryList = 1071;
inline constexpr ControlId kAdd = 1006;
inline constexpr ControlId kUpdate = 1007;
inline constexpr ControlId kRemove = 1005;
inline constexpr ControlId kNewClass = 1014;
inline constexpr ControlId kClearAll = 1004;
inline constexpr ControlId kDone = 1003;

/// The five lists that together are the table of classes, one line each per class.
inline constexpr std::array kTable = {kNameList, kFlagsList, kOfficialList, kCutsList,
                                      kCategoryList};

}  // namespace setup_classes

}  // namespace scorvane
