#include "tools/kelifc/json.h"

#include <array>
#include <cmath>

namespace command {
namespace {

std::string OnOneLine(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string OnLines(const Json& value) {
  if (!value.is_structured() || value.empty()) return OnOneLine(value);
  std::string text;
  for (const auto& [key, entry] : value.items()) {
    text += text.empty() ? "\n    " : ",\n    ";
    if (value.is_object()) text += OnOneLine(key) + ": ";
    text += OnOneLine(entry);
  }
  return value.is_object() ? "{" + text + "\n  }" : "[" + text + "\n  ]";
}

}  // namespace

std::string ToText(const Json& object) {
  std::string text;
  for (const auto& [key, value] : object.items()) {
    text += text.empty() ? "{\n  " : ",\n  ";
    text += OnOneLine(key) + ": " + OnLines(value);
  }
  return text + "\n}\n";
}

std::string JsonText(std::string_view text) { return OnOneLine(Json(text)); }

std::string NumberText(double value) {
  if (!std::isfinite(value)) return "null";
  std::array<char, 64> digits = {};
  char* const end = nlohmann::detail::to_chars(digits.data(), digits.data() + digits.size(), value);
  return {digits.data(), end};
}

}  // namespace command
