#include "tools/kelifc/json.h"

#include <cmath>
#include <utility>

namespace command {
namespace {

std::string OnOneLine(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

void JsonText::BeginMember(std::string_view key) {
  text += text.empty() ? "{\n  " : ",\n  ";
  text += OnOneLine(key) + ": ";
}

void JsonText::AddEntry(bool isFirst, const Json& entry) {
  text += isFirst ? "\n    " : ",\n    ";
  text += OnOneLine(entry);
}

void JsonText::Add(std::string_view key, const Json& value) {
  if (value.is_array())
    return AddList(key, value, [](const Json& entry) -> const Json& { return entry; });
  BeginMember(key);
  if (!value.is_object() || value.empty()) {
    text += OnOneLine(value);
    return;
  }
  text += '{';
  bool isFirst = true;
  for (const auto& [name, entry] : value.items()) {
    text += isFirst ? "\n    " : ",\n    ";
    text += OnOneLine(name) + ": " + OnOneLine(entry);
    isFirst = false;
  }
  text += "\n  }";
}

std::string JsonText::Finish() { return std::exchange(text, {}) + "\n}\n"; }

std::string ToText(const Json& object) {
  JsonText text;
  for (const auto& [key, value] : object.items()) text.Add(key, value);
  return text.Finish();
}

std::string QuotedText(std::string_view text) { return OnOneLine(Json(text)); }

std::string_view FormatNumber(double value, NumberBuffer& buffer) {
  if (!std::isfinite(value)) return "null";
  char* const end = nlohmann::detail::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), static_cast<std::size_t>(end - buffer.data())};
}

std::string NumberText(double value) {
  NumberBuffer buffer;
  return std::string(FormatNumber(value, buffer));
}

}  // namespace command
