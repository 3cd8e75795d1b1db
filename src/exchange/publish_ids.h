// The Publish Results dialog's controls, for its behaviour and its resource script.
#pragma once

#define IDD_PUBLISH 176
#define IDC_PUBLISH_AWARDS 1161
#define IDC_PUBLISH_TEAMS 1162
#define IDC_PUBLISH_CARDS 1163
