// Control ids of the dialog beside a print under way, shared with its resource script.
#pragma once

#define IDC_PRINT_PROGRESS 1042
#define IDC_ABORT_PRINT 1043
