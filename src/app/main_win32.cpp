// Start-up and the message loop.
#include <windows.h>

#include <array>
#include <memory>

#include "app/desktop_window_win32.h"
#include "app/file_menu.h"
#include "app/resource_ids.h"
#include "session/recovery.h"
#include "storage/file.h"
#include "text/unicode_win32.h"

namespace scorvane {

namespace {

std::unique_ptr<DesktopWindow>& mainWindow() {
  static std::unique_ptr<DesktopWindow> window;
  return window;
}

std::string resourceString(HINSTANCE instance, UINT id) {
  std::array<char, 500> text{};
  LoadStringA(instance, id, text.data(), static_cast<int>(text.size()));
  return text.data();
}

HICON loadIcon(HINSTANCE instance, int id, int widthMetric, int heightMetric) {
  return static_cast<HICON>(LoadImageA(instance, MAKEINTRESOURCEA(id), IMAGE_ICON,
                                       GetSystemMetrics(widthMetric),
                                       GetSystemMetrics(heightMetric), LR_DEFAULTCOLOR));
}

LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_CREATE) {
    mainWindow() = std::make_unique<DesktopWindow>(window);
    return 0;
  }
  if (mainWindow() != nullptr) {
    const auto answer = mainWindow()->handle(message, wParam, lParam);
    if (answer) return *answer;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

bool registerClass(HINSTANCE instance, const std::string& name) {
  WNDCLASSEXA description{};
  description.cbSize = sizeof description;
  description.style = CS_HREDRAW | CS_VREDRAW;
  description.lpfnWndProc = windowProcedure;
  description.hInstance = instance;
  description.hIcon = loadIcon(instance, IDI_PROGRAM, SM_CXICON, SM_CYICON);
  description.hIconSm = loadIcon(instance, IDI_PROGRAM_SMALL, SM_CXSMICON, SM_CYSMICON);
  description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  description.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  description.lpszMenuName = MAKEINTRESOURCEA(IDR_MENU);
  description.lpszClassName = name.c_str();
  return RegisterClassExA(&description) != 0;
}

bool showMainWindow(HINSTANCE instance, int request) {
  const std::string title = resourceString(instance, IDS_TITLE);
  const std::string className = resourceString(instance, IDS_WINDOW_CLASS);
  setProgramTitle(title);
  registerClass(instance, className);
  HWND window =
      CreateWindowExA(WS_EX_ACCEPTFILES, className.c_str(), title.c_str(),
                      WS_OVERLAPPEDWINDOW | WS_VSCROLL | WS_HSCROLL, CW_USEDEFAULT, CW_USEDEFAULT,
                      CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, instance, nullptr);
  if (window == nullptr) return false;
  ShowWindow(window, request);
  UpdateWindow(window);
  return true;
}

int runMessageLoop(HWND window, HACCEL accelerators) {
  MSG message{};
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    if (TranslateAcceleratorA(window, accelerators, &message) != 0) continue;
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
  return static_cast<int>(message.wParam);
}

}  // namespace

}  // namespace scorvane

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE /*previous*/, wchar_t* commandLine, int request) {
  using namespace scorvane;
  prepareContest();
  if (!showMainWindow(instance, request)) return 0;
  HACCEL accelerators = LoadAcceleratorsA(instance, MAKEINTRESOURCEA(IDR_ACCELERATORS));
  startKeepingWork(systemFiles());
  openContestOfCommandLine(*mainWindow(), utf8OfWide(commandLine));
  return runMessageLoop(mainWindow()->native(), accelerators);
}
