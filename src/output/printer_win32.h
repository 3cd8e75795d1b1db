// Prints a report on a printer that the operator chooses.
#pragma once

#include <string_view>

#include "output/print_layout.h"
#include "ui/native_window_win32.h"

// A handle of the system, named without its header.
struct HINSTANCE__;

namespace scorvane {

/// Shows the system's print dialog over `owner` and prints `report`, starting in `font`. `header`
/// is completed with the time. While it prints, the owner is disabled and a dialog from the
/// resources of `instance` offers to abort. Ends in silence when the operator cancels or the
/// printer fails; does nothing while another print is under way.
void printReport(NativeWindow owner, ::HINSTANCE__* instance, std::string_view report,
                 PrintHeader header, PrintFont font);

}  // namespace scorvane
