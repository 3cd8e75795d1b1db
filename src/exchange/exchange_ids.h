// The dialogs of this room and their controls, for the behaviour and the resource scripts.
#pragma once

// Earlier Saves
#define IDD_EARLIER_SAVES 170
#define IDC_SAVE_TIMES 1101
#define IDC_SAVE_CONTESTANTS 1102
#define IDC_SAVE_SCORES 1103
#define IDC_SAVE_CHANGES 1104
#define IDC_SHOW_DIFFERENCES 1105
#define IDC_GO_BACK 1106
#define IDC_WRITE_SAVE 1107
#define IDC_CHANGES_SINCE 1108

// Import Roster
#define IDD_IMPORT_ROSTER 178
#define IDC_ROSTER_TEXT 1181
#define IDC_OPEN_ROSTER 1182
#define IDC_ROSTER_PLAN 1183
#define IDC_ROSTER_SUMMARY 1184
