#ifndef KELIFC_CORE_TEXT_ISO_BINARY_H_
#define KELIFC_CORE_TEXT_ISO_BINARY_H_

#include <string>
#include <string_view>

namespace KelIFC {

// Binary values of ISO 10303-21 are written between double quotes: a digit from 0 to 3, which is
// the number of unused bits in the first hexadecimal digit, and then the hexadecimal digits. "20F"
// has the six bits 001111. The values of this library have one character per bit instead.

/// Appends the bits of a binary value, without its double quotes, as characters 0 and 1. Returns
/// false, and appends nothing, if `digits` does not have this form.
bool AppendBits(std::string& out, std::string_view digits);

/// Appends bits, which are characters 0 and 1, as a binary value without its double quotes. Returns
/// false, and appends nothing, if `bits` holds any other character.
bool AppendIsoBinary(std::string& out, std::string_view bits);

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_ISO_BINARY_H_
