#ifndef KELIFC_GEO_FIELDS_H_
#define KELIFC_GEO_FIELDS_H_

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

#include "kelifc/platform/com_guard.h"
#include "kelifc/platform/com_guid.h"
#include "kelifc/platform/com_text.h"
#include "kelifc/server/load_options.h"

namespace KelIFC {

// The bodies of operations that read or write one field of an object.

/// Copies a field to `out`. Returns E_POINTER if `out` is null.
template <class Value>
HRESULT GetField(const Value& field, Value* out) {
  if (out == nullptr) return E_POINTER;
  *out = field;
  return S_OK;
}

/// Writes a field.
template <class Value>
HRESULT PutField(const Value& value, Value* field) {
  *field = value;
  return S_OK;
}

/// Writes the text of a string to a field. Null is the empty text. On failure the field is
/// unchanged.
inline HRESULT PutText(BSTR text, std::string* field) {
  return Guard([&] {
    *field = NarrowText(text);
    return S_OK;
  });
}

/// Gives out a text of the building model, which is UTF-8.
inline HRESULT GiveBuildingText(std::string_view text, BSTR* out) {
  return Guard([&] { return GiveUtf8Text(text, out); });
}

/// Gives out a number of the building model. It is at most the largest LONG.
inline HRESULT GiveCount(std::size_t count, LONG* out) {
  constexpr std::size_t kMost = std::numeric_limits<LONG>::max();
  return GetField(static_cast<LONG>(count < kMost ? count : kMost), out);
}

/// Gives out a truth value.
inline HRESULT GiveTruth(bool value, VARIANT_BOOL* out) {
  return GetField(value ? VARIANT_TRUE : VARIANT_FALSE, out);
}

/// Gives out an identifier in braces.
inline HRESULT GiveGuid(const _GUID& guid, BSTR* out) {
  constexpr int kBracedSize = 39;
  if (out == nullptr) return E_POINTER;
  OLECHAR text[kBracedSize];
  StringFromGUID2(guid, text, kBracedSize);
  *out = SysAllocString(text);
  return *out == nullptr ? E_OUTOFMEMORY : S_OK;
}

/// Gives out a text of a model. In the dialect of ISO 10303-21 it is UTF-8, otherwise each byte is
/// a character.
inline HRESULT GiveModelText(const std::string& text, STEP_DIALECT dialect, BSTR* out) {
  if (dialect == STEP_DIALECT_CLASSIC) return GiveText(text, out);
  return Guard([&] { return GiveUtf8Text(text, out); });
}

/// Writes the text of a string to a text of a model. Null is the empty text. On failure the text is
/// unchanged.
inline HRESULT PutModelText(BSTR text, STEP_DIALECT dialect, std::string* field) {
  if (dialect == STEP_DIALECT_CLASSIC) return PutText(text, field);
  return Guard([&] {
    *field = Utf8Text({text, SysStringLen(text)});
    return S_OK;
  });
}

}  // namespace KelIFC

#endif  // KELIFC_GEO_FIELDS_H_
