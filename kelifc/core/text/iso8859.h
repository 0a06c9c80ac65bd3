#ifndef KELIFC_CORE_TEXT_ISO8859_H_
#define KELIFC_CORE_TEXT_ISO8859_H_

namespace KelIFC {

// The letters by which a STEP file names the pages of ISO 8859: A is ISO 8859-1 and I is ISO
// 8859-9.
constexpr char kFirstIsoPage = 'A';
constexpr char kLastIsoPage = 'I';

/// Returns the character of a byte in a page. Returns 0 if the page has no such character, or if
/// `page` is not one of the letters.
char32_t DecodeIso8859(char page, unsigned char byte);

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_ISO8859_H_
