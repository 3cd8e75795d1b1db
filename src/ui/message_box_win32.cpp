#include <windows.h>

#include "ui/dialog_win32.h"

namespace scorvane {

namespace {

UINT buttonsOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::okCancel:
      return MB_OKCANCEL;
    case Buttons::yesNo:
      return MB_YESNO;
    case Buttons::ok:
      break;
  }
  return MB_OK;
}

}  // namespace

Answer askOver(NativeWindow owner, const Message& message) {
  UINT style = buttonsOf(message.buttons);
  if (message.defaultAnswer == Answer::cancel || message.defaultAnswer == Answer::no) {
    style |= MB_DEFBUTTON2;
  }
  if (message.informationIcon) style |= MB_ICONINFORMATION;
  switch (MessageBoxA(owner, message.text.c_str(), message.caption.c_str(), style)) {
    case IDOK:
      return Answer::ok;
    case IDYES:
      return Answer::yes;
    case IDNO:
      return Answer::no;
    default:
      break;
  }
  // No box could be shown: nothing was agreed to.
  return message.buttons == Buttons::yesNo ? Answer::no : Answer::cancel;
}

}  // namespace scorvane
