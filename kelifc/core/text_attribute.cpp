#include "kelifc/core/text_attribute.h"

#include <cstddef>
#include <cstring>
#include <string>

#include "kelifc/core/detail/block_memory.h"
#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/text/quoting.h"

namespace KelIFC {
namespace {

constexpr std::size_t kGroupBits = 7;
constexpr std::size_t kMoreGroups = std::size_t{1} << kGroupBits;
constexpr std::size_t kGroupMask = kMoreGroups - 1;

/// The header of a block, and the begin of the characters after it.
struct Header {
  std::size_t length;
  bool exists;
  const unsigned char* text;
};

Header ReadHeader(const unsigned char* block) {
  std::size_t number = *block & kGroupMask;
  for (std::size_t shift = kGroupBits; (*block++ & kMoreGroups) != 0; shift += kGroupBits) {
    number |= (*block & kGroupMask) << shift;
  }
  return {number / 2, number % 2 != 0, block};
}

std::size_t CountGroups(std::size_t number) {
  std::size_t groups = 1;
  for (; number >= kMoreGroups; number >>= kGroupBits) ++groups;
  return groups;
}

unsigned char* WriteHeader(unsigned char* block, std::size_t number) {
  for (; number >= kMoreGroups; number >>= kGroupBits) {
    *block++ = static_cast<unsigned char>(number & kGroupMask) | kMoreGroups;
  }
  *block++ = static_cast<unsigned char>(number);
  return block;
}

}  // namespace

TextAttribute::TextAttribute(const char* text) { Store(text, true); }
TextAttribute::TextAttribute(const TextAttribute& other) {
  Store(other.GetText(), other.GetExists());
}

TextAttribute& TextAttribute::operator=(const TextAttribute& other) {
  if (this != &other) Store(other.GetText(), other.GetExists());
  return *this;
}

TextAttribute& TextAttribute::operator=(const char* text) {
  Store(text == nullptr ? "" : text, text != nullptr);
  return *this;
}

TextAttribute& TextAttribute::operator=(const STRING& text) {
  Store(text, text.GetExists());
  return *this;
}

bool TextAttribute::GetExists() const { return block != nullptr && *block % 2 != 0; }

std::string_view TextAttribute::GetText() const {
  if (block == nullptr) return {};
  const Header header = ReadHeader(block);
  return {reinterpret_cast<const char*>(header.text), header.length};
}

const char* TextAttribute::GetChars() const { return block == nullptr ? "" : GetText().data(); }

void TextAttribute::CopyTo(STRING& text) const {
  text.assign(GetText());
  text.exists = GetExists();
}

// The old text is freed last: `text` can be a part of it, and an allocation can fail.
void TextAttribute::Store(std::string_view text, bool exists) {
  unsigned char* stored = nullptr;
  if (exists || !text.empty()) {
    const std::size_t number = 2 * text.size() + (exists ? 1 : 0);
    const std::size_t size = CountGroups(number) + text.size() + 1;
    stored = static_cast<unsigned char*>(detail::AllocateBlock(size, 1));
    unsigned char* const chars = WriteHeader(stored, number);
    if (!text.empty()) std::memcpy(chars, text.data(), text.size());
    chars[text.size()] = '\0';
  }
  Free();
  block = stored;
}

void TextAttribute::Free() noexcept {
  detail::FreeBlock(block);
  block = nullptr;
}

const char* TextAttribute::Parse(const char* text) {
  const char* next = nullptr;
  if (detail::SkipOmittedValue(next, text) || text == nullptr) {
    Free();
    return next;
  }
  std::string_view plain;
  if (FindPlainQuoted(text, plain)) {
    Store(plain, true);
    return detail::BehindNextComma(plain.data() + plain.size() + 1);
  }
  std::string decoded;
  const char* const closing = DecodeQuoted(text, decoded);
  Store(decoded, closing != nullptr);
  return closing == nullptr ? text : detail::BehindNextComma(closing + 1);
}

std::ostream& TextAttribute::Write(std::ostream& out) const {
  if (GetExists()) {
    EncodeQuoted(out, GetText());
  } else {
    detail::PutChar(out, '$');
  }
  return out;
}

}  // namespace KelIFC
