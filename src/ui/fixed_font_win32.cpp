#include "ui/fixed_font_win32.h"

#include <windows.h>

#include <array>

namespace scorvane {

namespace {

GraphicsObject fontNamed(const char* face, int height) {
  // Face names alone do not keep a substitute from being proportional; pitch and family do.
  return GraphicsObject(CreateFontA(-height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET,
                                    OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
                                    FIXED_PITCH | FF_MODERN, face));
}

bool isFixedPitch(HGDIOBJ font) {
  HDC screen = GetDC(nullptr);
  const HGDIOBJ previous = SelectObject(screen, font);
  SIZE narrow{};
  SIZE wide{};
  const bool measured = GetTextExtentPoint32A(screen, "iiii", 4, &narrow) != FALSE &&
                        GetTextExtentPoint32A(screen, "WWWW", 4, &wide) != FALSE;
  SelectObject(screen, previous);
  ReleaseDC(nullptr, screen);
  return measured && narrow.cx == wide.cx;
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

}  // namespace scorvane
