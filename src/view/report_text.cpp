#include "view/report_text.h"

std::string& reportText() {
  static std::string text = kWelcomeText;
  return text;
}
