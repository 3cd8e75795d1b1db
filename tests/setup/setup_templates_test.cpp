// The templates of the setup dialogs: what each control is, and what stands beside it.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/approved.h"
#include "tests/ui/dialog_template.h"

namespace {

std::string withoutMnemonic(std::string caption) {
  std::erase(caption, '&');
  return caption;
}

// One line a control in tab order: id, kind, label or caption, and what keeps it from being plain.
std::string outline(const DialogTemplate& dialog) {
  std::string text = dialog.caption + "\n";
  std::string label;
  for (const TemplateControl& control : dialog.controls) {
    if (control.id < 0) {
      label = withoutMnemonic(control.caption);
      continue;
    }
    const std::string caption = withoutMnemonic(control.caption);
    text += std::to_string(control.id) + " " + control.statement + " " +
            (caption.empty() ? label : caption);
    for (const char* style : {"ES_NUMBER", "ES_UPPERCASE", "ES_READONLY", "LBS_SORT"}) {
      if (control.styles.find(style) != std::string::npos) text += std::string(" ") + style;
    }
    text += "\n";
  }
  return text;
}

TEST(SetupTemplates, HoldTheControlsTheDialogsWorkWith) {
  std::string text;
  for (const int id : {134, 135, 136, 163}) {
    const DialogTemplate* dialog = findDialogTemplate(id);
    ASSERT_NE(dialog, nullptr) << id;
    text += outline(*dialog) + "\n";
  }
  expectApproved(text, "setup/setup_templates.txt");
}

}  // namespace
