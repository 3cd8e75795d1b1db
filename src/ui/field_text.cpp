#include "ui/field_text.h"

#include <algorithm>

namespace scorvane {

std::string withoutControlCharacters(std::string_view text) {
  std::string cleaned(text);
  std::replace_if(
      cleaned.begin(), cleaned.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; },
      ' ');
  return cleaned;
}

std::string fieldText(const Dialog& dialog, ControlId id) {
  return withoutControlCharacters(std::string_view(dialog.text(id)).substr(0, kMaxFieldText));
}

std::int32_t fieldNumber(const Dialog& dialog, ControlId id) {
  return static_cast<std::int32_t>(dialog.number(id).value_or(0));
}

void showNumber(Dialog& dialog, ControlId id, std::int32_t value) {
  dialog.setNumber(id, static_cast<std::uint32_t>(value));
}

}  // namespace scorvane
