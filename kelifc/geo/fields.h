#ifndef KELIFC_GEO_FIELDS_H_
#define KELIFC_GEO_FIELDS_H_

#include <string>

#include "kelifc/platform/com_guard.h"
#include "kelifc/platform/com_text.h"

namespace KelIFC {

// The bodies of the operations that read or write one field of an object.

/// Copies a field to `out`; null gives E_POINTER.
template <class Value>
HRESULT GetField(const Value& field, Value* out) {
  if (out == nullptr) return E_POINTER;
  *out = field;
  return S_OK;
}

template <class Value>
HRESULT PutField(const Value& value, Value* field) {
  *field = value;
  return S_OK;
}

/// Takes over the text of a string; null is the empty text. On failure the field stays.
inline HRESULT PutText(BSTR text, std::string* field) {
  return Guard([&] {
    *field = NarrowText(text);
    return S_OK;
  });
}

}  // namespace KelIFC

#endif  // KELIFC_GEO_FIELDS_H_
