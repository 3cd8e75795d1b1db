// Opens a contest file, runs one command on it and, in every dialog that comes, chooses the last
// line of each list, types into each field, clicks each button that does not end the dialog, and
// closes it. For measuring from outside: worst_files.py. The dialogs' behaviour is the program's
// own; their controls are those of the unit tests, as Windows' need a screen.
#include <cstdio>
#include <cstdlib>
#include <iterator>

#include "app/command_table.h"
#include "app/file_menu.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "tests/app/memory_main_window.h"

namespace scorvane {

namespace {

void use(MemoryDialog& dialog) {
  for (const auto& [id, control] : std::map(dialog.controls())) {
    dialog.desktop.answers.assign(8, Answer::cancel);
    if (dialog.result()) return;
    if (control.isEdit()) dialog.fill(id, "1");
    if (control.isList() && dialog.lineCount(id) > 0) dialog.choose(id, dialog.lineCount(id) - 1);
    const bool isButton =
        control.statement.ends_with("BUTTON") || control.statement == "AUTOCHECKBOX";
    if (isButton && id != kOkId && id != kCancelId) dialog.click(id);
  }
  dialog.desktop.answers.assign(8, Answer::cancel);
  if (!dialog.result()) dialog.pressCloseBox();
}

bool run(const char* path, int command) {
  MemoryMainWindow window;
  int dialogs = 0;
  window.operate = [&dialogs](MemoryDialog& dialog) {
    ++dialogs;
    use(dialog);
  };
  prepareContest();
  if (!openContest(window, path)) return false;
  currentFileName().clear();
  window.desktop.answers.assign(8, Answer::ok);
  window.desktop.files = {path};
  runCommand(command, window);
  return dialogs > 0;
}

}  // namespace

}  // namespace scorvane

int main(int count, char** arguments) {
  if (count == 3) return scorvane::run(arguments[1], std::atoi(arguments[2])) ? 0 : 3;
  for (const scorvane::Command& command : scorvane::commandTable()) {
    const scorvane::Report* report = command.report();
    if (command.menu == "File" || (report != nullptr && report->ask == nullptr)) continue;
    const std::string caption(command.name());
    std::printf("%d\t%s\n", command.id, caption.c_str());
  }
  return 0;
}
