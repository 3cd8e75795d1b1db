// The Custom Report dialog's controls, for its resource script and its behaviour.
#pragma once

#define IDD_CUSTOM_REPORT 140
#define IDC_CUSTOM_CLASSES 1036
#define IDC_CUSTOM_NUMBER 1037
#define IDC_CUSTOM_OVERALL 1038
#define IDC_CUSTOM_PLACINGS 1039
#define IDC_CUSTOM_REASONS 1040
#define IDC_CUSTOM_PERCENT 1041
#define IDC_CUSTOM_QUESTIONS 1042
#define IDC_CUSTOM_TITLE 1045
#define IDC_CUSTOM_TEAM 1057
#define IDC_CUSTOM_CATEGORY 1075
