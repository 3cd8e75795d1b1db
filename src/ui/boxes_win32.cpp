#include <windows.h>
// The common dialogs and the shell's folders need windows.h before them.
#include <commdlg.h>
#include <shlobj.h>

#include <array>

#include "text/characters.h"
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

// Pairs of name and pattern, each ended by a NUL, the list by one more.
std::string filterList(const std::vector<FileFilter>& filters) {
  std::string list;
  for (const FileFilter& filter : filters) {
    list += filter.name + '\0';
    list += filter.pattern + '\0';
  }
  return list + '\0';
}

std::string documentsFolder() {
  std::array<char, MAX_PATH> folder{};
  const HRESULT result =
      SHGetFolderPathA(nullptr, CSIDL_PERSONAL, nullptr, SHGFP_TYPE_CURRENT, folder.data());
  return SUCCEEDED(result) ? folder.data() : "";
}

// The file dialogs change the process's current folder; a contest named by a relative path on the
// command line would then be saved elsewhere.
class KeptFolder {
 public:
  KeptFolder() { GetCurrentDirectoryA(static_cast<DWORD>(folder_.size()), folder_.data()); }
  KeptFolder(const KeptFolder&) = delete;
  KeptFolder& operator=(const KeptFolder&) = delete;
  ~KeptFolder() {
    if (folder_.front() != '\0') SetCurrentDirectoryA(folder_.data());
  }

 private:
  std::array<char, MAX_PATH + 1> folder_{};
};

}  // namespace

Answer askOver(NativeWindow owner, const Message& message) {
  UINT style = buttonsOf(message.buttons);
  if (message.defaultAnswer == Answer::cancel || message.defaultAnswer == Answer::no) {
    style |= MB_DEFBUTTON2;
  }
  if (message.informationIcon) style |= MB_ICONINFORMATION;
  const std::string text = withoutCommands(message.text);
  switch (MessageBoxA(owner, text.c_str(), message.caption.c_str(), style)) {
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

std::optional<std::string> chooseFileOver(NativeWindow owner, const FileQuestion& question) {
  const std::string filters = filterList(question.filters);
  const std::string documents = documentsFolder();
  std::array<char, kMaxPathLength + 1> path{};
  OPENFILENAMEA dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.lpstrFilter = filters.c_str();
  dialog.nFilterIndex = 1;
  dialog.lpstrFile = path.data();
  dialog.nMaxFile = static_cast<DWORD>(path.size());
  // Windows itself prefers the folder used last once there is one.
  dialog.lpstrInitialDir = documents.empty() ? nullptr : documents.c_str();
  dialog.lpstrDefExt = question.defaultExtension.c_str();
  dialog.Flags = OFN_HIDEREADONLY | OFN_PATHMUSTEXIST;
  if (question.fileMustExist) dialog.Flags |= OFN_FILEMUSTEXIST;
  const KeptFolder keptFolder;
  const BOOL chosen = question.purpose == FileQuestion::Purpose::open ? GetOpenFileNameA(&dialog)
                                                                      : GetSaveFileNameA(&dialog);
  if (chosen == FALSE) return std::nullopt;
  return path.data();
}

}  // namespace scorvane
