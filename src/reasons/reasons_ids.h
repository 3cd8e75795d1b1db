// Dialogs of the reasons order and their controls, for the behaviour and the resource scripts.
#pragma once

// "Reasons Class to Score"
#define IDD_REASONS_CLASS 146
#define IDC_REASONS_CLASSES 1052

// "Reasons Order Edit"
#define IDD_REASONS_ORDER_EDIT 165
#define IDC_REASONS_GROUPS 1081
#define IDC_SPEAKER_UP 1082
#define IDC_SPEAKERS 1083
#define IDC_UNASSIGNED_SPEAKERS 1084
#define IDC_SPEAKER_DOWN 1085
#define IDC_REASONS_ORDER_DONE 1086
#define IDC_REMOVE_SPEAKER 1088
