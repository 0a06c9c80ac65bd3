#include "export/view/base64.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace KelIFC::exporting {
namespace {

constexpr std::string_view kDigits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::size_t kGroup = 3;                // bytes that become four digits
constexpr std::size_t kBlock = kGroup * 16'384;  // bytes that are written at once

// Appends the digits of up to three bytes, and the padding of a shorter group.
void AppendGroup(std::string& text, std::string_view group) {
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < kGroup; i++) {
    bits = bits << 8U | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0U);
  }
  for (std::size_t i = 0; i <= kGroup; i++) {
    text += i <= group.size() ? kDigits[bits >> (6U * (kGroup - i)) & 63U] : '=';
  }
}

}  // namespace

Base64Writer::Base64Writer(ByteSink sink) : sink(std::move(sink)) {}

void Base64Writer::Write(std::string_view bytes) {
  if (!rest.empty()) {
    const std::size_t missing = std::min(kGroup - rest.size(), bytes.size());
    rest.append(bytes.substr(0, missing));
    bytes.remove_prefix(missing);
    if (rest.size() < kGroup) return;
    text.clear();
    AppendGroup(text, rest);
    rest.clear();
    sink(text);
  }
  while (bytes.size() >= kGroup) {
    const std::size_t size = std::min(kBlock, bytes.size() - bytes.size() % kGroup);
    text.clear();
    for (std::size_t i = 0; i < size; i += kGroup) AppendGroup(text, bytes.substr(i, kGroup));
    sink(text);
    bytes.remove_prefix(size);
  }
  rest.append(bytes);
}

void Base64Writer::Finish() {
  if (rest.empty()) return;
  text.clear();
  AppendGroup(text, rest);
  rest.clear();
  sink(text);
}

}  // namespace KelIFC::exporting
