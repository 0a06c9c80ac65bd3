#include "export/saf/identifiers.h"

#include <cstring>

#include "export/saf/cell_text.h"
#include "export/text.h"

namespace KelIFC::exporting::saf {
namespace {

constexpr std::string_view kGlobalIdDigits =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$";
constexpr std::size_t kGlobalIdLength = 22;

// The hash of FNV-1a with 64 bits, then a step that spreads each bit over all bits.
std::uint64_t HashOf(std::string_view text, std::uint64_t seed) {
  std::uint64_t hash = 0xcbf29ce484222325U ^ seed;
  for (const char c : text) {
    hash ^= static_cast<unsigned char>(c);
    hash *= 0x100000001b3U;
  }
  hash = (hash ^ (hash >> 30)) * 0xbf58476d1ce4e5b9U;
  hash = (hash ^ (hash >> 27)) * 0x94d049bb133111ebU;
  return hash ^ (hash >> 31);
}

void StoreBigEndian(std::uint64_t value, std::uint8_t* bytes) {
  for (int i = 7; i >= 0; --i) {
    bytes[i] = static_cast<std::uint8_t>(value & 0xFF);
    value >>= 8;
  }
}

}  // namespace

std::optional<Uuid> UuidOfGlobalId(std::string_view guid) {
  if (guid.size() != kGlobalIdLength) return std::nullopt;
  // The first character holds 2 bits, each of the others 6 bits, the highest bits first.
  std::uint64_t high = 0;
  std::uint64_t low = 0;
  for (std::size_t i = 0; i < guid.size(); ++i) {
    const std::size_t digit = kGlobalIdDigits.find(guid[i]);
    if (digit == std::string_view::npos || (i == 0 && digit > 3)) return std::nullopt;
    high = (high << 6) | (low >> 58);
    low = (low << 6) | digit;
  }
  Uuid uuid = {};
  StoreBigEndian(high, uuid.data());
  StoreBigEndian(low, uuid.data() + 8);
  return uuid;
}

Uuid UuidOfText(std::string_view text) {
  Uuid uuid = {};
  StoreBigEndian(HashOf(text, 0), uuid.data());
  StoreBigEndian(HashOf(text, 0x9e3779b97f4a7c15U), uuid.data() + 8);
  uuid[6] = static_cast<std::uint8_t>((uuid[6] & 0x0F) | 0x80);  // version 8
  uuid[8] = static_cast<std::uint8_t>((uuid[8] & 0x3F) | 0x80);  // the variant of RFC 9562
  return uuid;
}

std::string TextOf(const Uuid& uuid) {
  constexpr std::string_view kHexDigits = "0123456789abcdef";
  std::string text;
  for (std::size_t i = 0; i < uuid.size(); ++i) {
    if (i == 4 || i == 6 || i == 8 || i == 10) text += '-';
    text += kHexDigits[uuid[i] >> 4];
    text += kHexDigits[uuid[i] & 0x0F];
  }
  return text;
}

std::size_t IdList::Hash::operator()(const Uuid& uuid) const {
  std::uint64_t high = 0;
  std::uint64_t low = 0;
  std::memcpy(&high, uuid.data(), sizeof high);
  std::memcpy(&low, uuid.data() + sizeof high, sizeof low);
  return static_cast<std::size_t>(high ^ (low * 0x9e3779b97f4a7c15U));
}

std::string IdList::Take(std::string_view guid, std::string_view text) {
  const std::optional<Uuid> uuid = UuidOfGlobalId(guid);
  if (uuid && used.insert(*uuid).second) return TextOf(*uuid);
  return Take(text);
}

std::string IdList::Take(std::string_view text) {
  const std::string full = project + '/' + std::string(text);
  Uuid uuid = UuidOfText(full);
  for (std::size_t i = 2; !used.insert(uuid).second; ++i) {
    uuid = UuidOfText(full + '#' + std::to_string(i));
  }
  return TextOf(uuid);
}

bool NameList::Insert(const std::string& name) {
  std::string key = name;
  for (char& c : key) c = LowerCase(c);
  return used.emplace(std::move(key), 1).second;
}

std::string NameList::Take(std::string_view name, std::string_view fallback) {
  FittedText fitted = ObjectName(name);
  if (fitted.text.empty()) fitted = ObjectName(fallback);
  if (fitted.isShortened) ++shortened;
  if (Insert(fitted.text)) return fitted.text;
  std::string key = fitted.text;
  for (char& c : key) c = LowerCase(c);
  for (;;) {
    const std::size_t suffix = ++used[key];
    std::string candidate = fitted.text + '_' + std::to_string(suffix);
    if (Insert(candidate)) return candidate;
  }
}

}  // namespace KelIFC::exporting::saf
