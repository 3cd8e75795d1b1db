// The Round Verification Report dialog's controls, for its resource script and its behaviour.
#pragma once

#define IDD_ROUND_VERIFICATION 164
#define IDC_VERIFIED_CLASSES 1016
#define IDC_VERIFIED_GROUPS 1053
#define IDC_VERIFIED_ROUNDS 1080
