// Menu, icons and strings of the main window, for the resource scripts and the start-up.
#pragma once

#define IDS_TITLE 103
#define IDS_WINDOW_CLASS 109
#define IDR_MENU 109
#define IDR_ACCELERATORS 109
#define IDI_PROGRAM 155
#define IDI_PROGRAM_SMALL 159
