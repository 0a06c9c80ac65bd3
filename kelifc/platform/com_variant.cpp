#include "kelifc/platform/com_variant.h"

#ifndef _WIN32

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>
#include <string_view>
#include <system_error>

namespace {

/// The number of significant digits in the text of a real number.
constexpr int kRealDigits = 15;

/// The most characters of text that is read as a number.
constexpr UINT kLongestNumber = 400;

/// Room for a sign, the digits, a point and an exponent.
constexpr int kNumberSize = 32;

std::string_view TrimBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

HRESULT NumberOfText(BSTR string, double* out) {
  char buffer[kLongestNumber];
  const UINT length = SysStringLen(string);
  if (length > kLongestNumber) return DISP_E_TYPEMISMATCH;
  for (UINT i = 0; i < length; ++i) {
    if (string[i] < L' ' || string[i] > L'~') return DISP_E_TYPEMISMATCH;
    buffer[i] = static_cast<char>(string[i]);
  }
  std::string_view text = TrimBlanks({buffer, length});
  const bool isNegative = text.starts_with('-');
  if (isNegative || text.starts_with('+')) text.remove_prefix(1);
  // Neither "inf" nor "nan" nor a second sign is allowed.
  if (text.find_first_of(".0123456789") != 0) return DISP_E_TYPEMISMATCH;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), *out);
  if (isNegative) *out = -*out;
  if (error == std::errc::result_out_of_range) return DISP_E_OVERFLOW;
  return error == std::errc() && end == text.data() + text.size() ? S_OK : DISP_E_TYPEMISMATCH;
}

HRESULT NumberOf(const VARIANT& variant, double* out) {
  switch (variant.vt) {
    case VT_EMPTY:
      *out = 0.0;
      return S_OK;
    case VT_I2:
      *out = variant.iVal;
      return S_OK;
    case VT_I4:
      *out = variant.lVal;
      return S_OK;
    case VT_R8:
      *out = variant.dblVal;
      return S_OK;
    case VT_BOOL:
      *out = variant.boolVal;
      return S_OK;
    case VT_BSTR:
      return NumberOfText(variant.bstrVal, out);
    default:
      return DISP_E_TYPEMISMATCH;
  }
}

/// Rounds to the nearest integer, a half to the even one. Returns DISP_E_OVERFLOW if the type
/// cannot hold it.
template <class Whole>
HRESULT Round(double number, Whole* out) {
  using Limits = std::numeric_limits<Whole>;
  if (!(number >= Limits::min() - 0.5 && number < Limits::max() + 0.5)) return DISP_E_OVERFLOW;
  auto whole = static_cast<std::int64_t>(number);
  const double rest = number - static_cast<double>(whole);
  const bool isOdd = whole % 2 != 0;
  if (rest > 0.5 || (rest == 0.5 && isOdd)) ++whole;
  if (rest < -0.5 || (rest == -0.5 && isOdd)) --whole;
  if (whole > Limits::max() || whole < Limits::min()) return DISP_E_OVERFLOW;
  *out = static_cast<Whole>(whole);
  return S_OK;
}

HRESULT TextOf(const VARIANT& variant, BSTR* out) {
  char text[kNumberSize] = {};
  char* end = text;
  if (variant.vt == VT_R8) {
    end = std::to_chars(text, text + kNumberSize, variant.dblVal, std::chars_format::general,
                        kRealDigits)
              .ptr;
  } else if (variant.vt != VT_EMPTY) {
    double number = 0.0;
    if (variant.vt == VT_BSTR || FAILED(NumberOf(variant, &number))) return DISP_E_TYPEMISMATCH;
    end = std::to_chars(text, text + kNumberSize, static_cast<LONG>(number)).ptr;
  }
  OLECHAR wide[kNumberSize];
  for (const char* from = text; from != end; ++from) wide[from - text] = *from;
  *out = SysAllocStringLen(wide, static_cast<UINT>(end - text));
  return *out == nullptr ? E_OUTOFMEMORY : S_OK;
}

HRESULT Turn(const VARIANT& source, VARTYPE type, VARIANT* out) {
  if (type == VT_BSTR) return TextOf(source, &out->bstrVal);
  double number = 0.0;
  const HRESULT status = NumberOf(source, &number);
  if (FAILED(status)) return status;
  switch (type) {
    case VT_I2:
      return Round(number, &out->iVal);
    case VT_I4:
      return Round(number, &out->lVal);
    case VT_R8:
      out->dblVal = number;
      return S_OK;
    case VT_BOOL:
      out->boolVal = number != 0.0 ? VARIANT_TRUE : VARIANT_FALSE;
      return S_OK;
    default:
      return DISP_E_TYPEMISMATCH;
  }
}

/// Returns true for the types whose values need neither a copy nor a release.
bool OwnsNothing(VARTYPE type) {
  constexpr VARTYPE kTypes[] = {VT_EMPTY, VT_NULL, VT_I2, VT_I4, VT_R8, VT_ERROR, VT_BOOL};
  return std::find(std::begin(kTypes), std::end(kTypes), type) != std::end(kTypes);
}

/// Makes a bitwise copy of a variant an owner of its own: copies the string or counts the
/// reference.
HRESULT Share(VARIANT* copy) {
  switch (copy->vt) {
    case VT_BSTR:
      if (copy->bstrVal == nullptr) return S_OK;
      copy->bstrVal = SysAllocStringLen(copy->bstrVal, SysStringLen(copy->bstrVal));
      return copy->bstrVal == nullptr ? E_OUTOFMEMORY : S_OK;
    case VT_DISPATCH:
      if (copy->pdispVal != nullptr) copy->pdispVal->AddRef();
      return S_OK;
    case VT_UNKNOWN:
      if (copy->punkVal != nullptr) copy->punkVal->AddRef();
      return S_OK;
    default:
      return OwnsNothing(copy->vt) ? S_OK : DISP_E_BADVARTYPE;
  }
}

HRESULT Replace(VARIANT* target, VARIANT value) {
  const HRESULT status = VariantClear(target);
  if (FAILED(status)) {
    VariantClear(&value);
    return status;
  }
  *target = value;
  return S_OK;
}

}  // namespace

void VariantInit(VARIANT* variant) {
  if (variant != nullptr) *variant = {};
}

HRESULT VariantClear(VARIANT* variant) {
  if (variant == nullptr) return E_INVALIDARG;
  VARIANT old = *variant;
  switch (old.vt) {
    case VT_BSTR:
      SysFreeString(old.bstrVal);
      break;
    case VT_DISPATCH:
      if (old.pdispVal != nullptr) old.pdispVal->Release();
      break;
    case VT_UNKNOWN:
      if (old.punkVal != nullptr) old.punkVal->Release();
      break;
    default:
      if (!OwnsNothing(old.vt)) return DISP_E_BADVARTYPE;
  }
  *variant = {};
  return S_OK;
}

HRESULT VariantCopy(VARIANT* target, const VARIANT* source) {
  if (target == nullptr || source == nullptr) return E_INVALIDARG;
  if (target == source) return S_OK;
  VARIANT copy = *source;
  const HRESULT status = Share(&copy);
  return FAILED(status) ? status : Replace(target, copy);
}

HRESULT VariantChangeType(VARIANT* target, const VARIANT* source, USHORT /*flags*/, VARTYPE type) {
  if (target == nullptr || source == nullptr) return E_INVALIDARG;
  if (source->vt == type) return VariantCopy(target, source);
  VARIANT turned = {};
  const HRESULT status = Turn(*source, type, &turned);
  if (FAILED(status)) return status;
  turned.vt = type;
  return Replace(target, turned);
}

#endif
