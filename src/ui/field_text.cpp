#include "ui/field_text.h"

#include <string_view>

#include "text/characters.h"

namespace scorvane {

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
