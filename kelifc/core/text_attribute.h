#ifndef KELIFC_CORE_TEXT_ATTRIBUTE_H_
#define KELIFC_CORE_TEXT_ATTRIBUTE_H_

#include <string_view>
#include <type_traits>

#include "kelifc/core/string.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// A text attribute of an entity, as the instance stores it: the value of a STRING in the size of a
/// pointer. An unset text takes no other memory. Getters return it as a STRING or as a class that
/// derives from STRING.
///
/// The characters are allocated with AllocateBlock. So a load stores them beside the instances.
class KELIFC_API TextAttribute {
 public:
  /// An unset text.
  TextAttribute() = default;
  /// A text that is set.
  explicit TextAttribute(const char* text);
  TextAttribute(const TextAttribute& other);
  TextAttribute& operator=(const TextAttribute& other);
  ~TextAttribute() {
    if (block != nullptr) Free();
  }

  /// Replaces the text and marks the attribute as existing. Null makes it unset.
  TextAttribute& operator=(const char* text);
  /// Takes the characters of a text, and whether it exists.
  TextAttribute& operator=(const STRING& text);

  /// Replaces the text, which can contain NULs, and marks the attribute as existing.
  void Assign(std::string_view text) { Store(text, true); }

  /// Returns the text as a STRING or as a class that derives from STRING.
  template <class Text, std::enable_if_t<std::is_base_of_v<STRING, Text>, int> = 0>
  operator Text() const {
    Text text;
    CopyTo(text);
    return text;
  }

  /// Returns false if the text is unset.
  bool GetExists() const;
  /// Returns the characters. They are valid until the attribute changes. After a parse without a
  /// closing quote, an unset attribute has characters.
  std::string_view GetText() const;
  /// Returns the same characters with a NUL at the end.
  const char* GetChars() const;

  /// Parses what STRING::Parse parses, with the same result.
  const char* Parse(const char* text);
  /// Writes what STRING::Write writes.
  std::ostream& Write(std::ostream& out) const;

 private:
  void CopyTo(STRING& text) const;
  void Store(std::string_view text, bool exists);
  void Free() noexcept;

  // Null for an unset text without characters. Otherwise a header, the characters and a NUL. The
  // header is the number 2 * length + exists in groups of seven bits. The lowest group comes first,
  // and each group but the last has its eighth bit set.
  unsigned char* block = nullptr;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_ATTRIBUTE_H_
