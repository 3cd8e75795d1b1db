// The About box's controls, for its resource script and its behaviour.
#pragma once

#define IDD_ABOUT 103
#define IDC_ABOUT_VERSION 1001
