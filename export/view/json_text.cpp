#include "export/view/json_text.h"

#include <cmath>

#include "export/text.h"

namespace KelIFC::exporting {
namespace {

constexpr int kDecimals = 9;
constexpr std::string_view kHexDigits = "0123456789abcdef";

void AppendEscaped(std::string& text, char c) {
  const auto code = static_cast<unsigned char>(c);
  if (c == '"' || c == '\\') {
    text += '\\';
    text += c;
  } else if (code < 0x20) {
    text += "\\u00";
    text += kHexDigits[code >> 4U];
    text += kHexDigits[code & 15U];
  } else {
    text += c;
  }
}

}  // namespace

// A value follows another one unless it is the first of its container or has a key.
void JsonText::Separate() {
  if (text.empty()) return;
  const char last = text.back();
  if (last != '{' && last != '[' && last != ':') text += ',';
}

void JsonText::Begin(char bracket) {
  Separate();
  text += bracket;
}

void JsonText::Key(std::string_view key) {
  Value(key);
  text += ':';
}

void JsonText::Value(std::string_view value) {
  Separate();
  text += '"';
  for (const char c : ValidUtf8(value)) AppendEscaped(text, c);
  text += '"';
}

void JsonText::Value(double value) {
  if (!std::isfinite(value)) return Null();
  Separate();
  AppendNumber(text, value);
}

void JsonText::Value(std::size_t value) {
  Separate();
  text += std::to_string(value);
}

void JsonText::Null() {
  Separate();
  text += "null";
}

void JsonText::Flag(bool value) {
  Separate();
  text += value ? "true" : "false";
}

void JsonText::Rounded(double value) {
  if (!std::isfinite(value)) return Null();
  Separate();
  AppendRounded(text, value, kDecimals);
}

}  // namespace KelIFC::exporting
