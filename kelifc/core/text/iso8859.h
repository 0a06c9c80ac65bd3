#ifndef KELIFC_CORE_TEXT_ISO8859_H_
#define KELIFC_CORE_TEXT_ISO8859_H_

namespace KelIFC {

// The pages of ISO 8859 that a STEP file can name, by their letters: A is ISO 8859-1 and I is
// ISO 8859-9.
constexpr char kFirstIsoPage = 'A';
constexpr char kLastIsoPage = 'I';

/// The character that a page has for a byte. Returns 0 if the page has none there, or if `page` is
/// not one of the letters.
char32_t DecodeIso8859(char page, unsigned char byte);

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_ISO8859_H_
