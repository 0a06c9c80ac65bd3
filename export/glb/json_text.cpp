#include "export/glb/json_text.h"

#include <cmath>

#include "export/text.h"

namespace KelIFC::exporting {
namespace {

constexpr int kDecimals = 9;

void AppendEscaped(std::string& text, char character) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  const auto code = static_cast<unsigned char>(character);
  if (character == '"' || character == '\\') {
    text += '\\';
    text += character;
  } else if (code < 0x20 || code == 0x7F) {
    text += "\\u00";
    text += kDigits[code >> 4U];
    text += kDigits[code & 0xFU];
  } else {
    text += character;
  }
}

}  // namespace

void JsonText::Key(std::string_view name) {
  String(name);
  text += ':';
  needsComma = false;
}

void JsonText::String(std::string_view value) {
  Separate();
  text += '"';
  for (const char character : ValidUtf8(value)) AppendEscaped(text, character);
  text += '"';
}

void JsonText::Number(double value) {
  Separate();
  if (std::isfinite(value)) {
    AppendNumber(text, value);
  } else {
    text += "null";
  }
}

void JsonText::Rounded(double value) {
  Separate();
  if (std::isfinite(value)) {
    AppendRounded(text, value, kDecimals);
  } else {
    text += "null";
  }
}

void JsonText::Integer(std::size_t value) {
  Separate();
  text += std::to_string(value);
}

void JsonText::Bool(bool value) {
  Separate();
  text += value ? "true" : "false";
}

void JsonText::RoundedArray(std::initializer_list<double> values) {
  BeginArray();
  for (const double value : values) Rounded(value);
  EndArray();
}

void JsonText::Begin(char bracket) {
  Separate();
  text += bracket;
  needsComma = false;
}

void JsonText::End(char bracket) {
  text += bracket;
  needsComma = true;
}

void JsonText::Separate() {
  if (needsComma) text += ',';
  needsComma = true;
}

}  // namespace KelIFC::exporting
