#include "ui/fixed_font_win32.h"

#include <windows.h>

#include <array>
#include <cstdlib>

#include "ui/control_kind_win32.h"

namespace scorvane {

namespace {

GraphicsObject fontNamed(const char* face, int height) {
  // Face names alone do not keep a substitute from being proportional; pitch and family do.
  return GraphicsObject(CreateFontA(-height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET,
                                    OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
                                    FIXED_PITCH | FF_MODERN, face));
}

int textWidth(HGDIOBJ font, const char* text) {
  HDC screen = GetDC(nullptr);
  const HGDIOBJ previous = SelectObject(screen, font);
  SIZE size{};
  const BOOL measured = GetTextExtentPoint32A(screen, text, lstrlenA(text), &size);
  SelectObject(screen, previous);
  ReleaseDC(nullptr, screen);
  return measured != FALSE ? size.cx : 0;
}

bool isFixedPitch(HGDIOBJ font) {
  const int narrow = textWidth(font, "iiii");
  return narrow > 0 && narrow == textWidth(font, "WWWW");
}

}  // namespace

void GraphicsObjectDeleter::operator()(void* object) const {
  DeleteObject(object);
}

GraphicsObject makeFixedFont(int height) {
  for (const char* face : std::array{"Consolas", "Courier New"}) {
    GraphicsObject font = fontNamed(face, height);
    if (font != nullptr && isFixedPitch(font.get())) return font;
  }
  // A stock object; deleting it does nothing.
  return GraphicsObject(GetStockObject(ANSI_FIXED_FONT));
}

GraphicsObject useColumnFont(NativeWindow dialog) {
  const auto dialogFont = reinterpret_cast<HFONT>(SendMessageA(dialog, WM_GETFONT, 0, 0));
  LOGFONTA font{};
  if (dialogFont == nullptr || GetObjectA(dialogFont, sizeof font, &font) == 0) return {};
  GraphicsObject columnFont = makeFixedFont(std::abs(static_cast<int>(font.lfHeight)));
  for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    if (controlKind(child) != ControlKind::list) continue;
    SendMessageA(child, WM_SETFONT, reinterpret_cast<WPARAM>(columnFont.get()), FALSE);
  }
  return columnFont;
}

int characterWidth(const GraphicsObject& fixedFont) {
  return textWidth(fixedFont.get(), "W");
}

}  // namespace scorvane
