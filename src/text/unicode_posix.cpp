#include "text/unicode.h"

namespace scorvane {

std::string shownPath(std::string_view path) {
  return windows1252Of(path);
}

}  // namespace scorvane
