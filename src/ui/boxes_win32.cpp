#include <windows.h>
// The common dialogs and the shell's folders need windows.h before them.
#include <commdlg.h>
#include <shlobj.h>

#include <array>

#include "text/characters.h"
#include "text/unicode_win32.h"
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

// The program's own words, which are ASCII.
std::wstring wordsOf(const std::string& text) {
  return {text.begin(), text.end()};
}

// Pairs of name and pattern, each ended by a NUL, the list by one more.
std::wstring filterList(const std::vector<FileFilter>& filters) {
  std::wstring list;
  for (const FileFilter& filter : filters) {
    list += wordsOf(filter.name) + L'\0';
    list += wordsOf(filter.pattern) + L'\0';
  }
  return list + L'\0';
}

std::wstring documentsFolder() {
  std::array<wchar_t, MAX_PATH> folder{};
  const HRESULT result =
      SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, SHGFP_TYPE_CURRENT, folder.data());
  return SUCCEEDED(result) ? folder.data() : L"";
}

// The file dialogs change the process's current folder; a contest named by a relative path on the
// command line would then be saved elsewhere.
class KeptFolder {
 public:
  KeptFolder() { GetCurrentDirectoryW(static_cast<DWORD>(folder_.size()), folder_.data()); }
  KeptFolder(const KeptFolder&) = delete;
  KeptFolder& operator=(const KeptFolder&) = delete;
  ~KeptFolder() {
    if (folder_.front() != L'\0') SetCurrentDirectoryW(folder_.data());
  }

 private:
  std::array<wchar_t, MAX_PATH + 1> folder_{};
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
  const std::wstring filters = filterList(question.filters);
  std::wstring folder = wordsOf(question.folder);
  // The drive may have been pulled out.
  if (folder.empty() || GetFileAttributesW(folder.c_str()) == INVALID_FILE_ATTRIBUTES) {
    folder = documentsFolder();
  }
  const std::wstring extension = wordsOf(question.defaultExtension);
  std::array<wchar_t, 2 * kMaxPathLength + 1> path{};  // characters may be pairs of surrogates
  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.lpstrFilter = filters.c_str();
  dialog.nFilterIndex = 1;
  dialog.lpstrFile = path.data();
  dialog.nMaxFile = static_cast<DWORD>(path.size());
  dialog.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
  dialog.lpstrDefExt = extension.c_str();
  dialog.Flags = OFN_HIDEREADONLY | OFN_PATHMUSTEXIST;
  if (question.fileMustExist) dialog.Flags |= OFN_FILEMUSTEXIST;
  const KeptFolder keptFolder;
  const BOOL chosen = question.purpose == FileQuestion::Purpose::open ? GetOpenFileNameW(&dialog)
                                                                      : GetSaveFileNameW(&dialog);
  if (chosen == FALSE) return std::nullopt;
  return utf8OfWide(path.data());
}

}  // namespace scorvane
