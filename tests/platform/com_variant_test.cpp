#include "kelifc/platform/com_variant.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace {

/// A variant that the destructor clears.
struct Value : VARIANT {
  Value() : VARIANT{} {}
  explicit Value(LONG number) : VARIANT{} {
    vt = VT_I4;
    lVal = number;
  }
  explicit Value(double number) : VARIANT{} {
    vt = VT_R8;
    dblVal = number;
  }
  explicit Value(const wchar_t* text) : VARIANT{} {
    vt = VT_BSTR;
    bstrVal = SysAllocString(text);
  }
  static Value Short(SHORT number) {
    Value value;
    value.vt = VT_I2;
    value.iVal = number;
    return value;
  }
  static Value Bool(bool truth) {
    Value value;
    value.vt = VT_BOOL;
    value.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
    return value;
  }
  static Value OfType(VARTYPE type) {
    Value value;
    value.vt = type;
    return value;
  }
  Value(Value&& other) noexcept : VARIANT(other) { VariantInit(&other); }
  Value(const Value&) = delete;
  Value& operator=(const Value&) = delete;
  ~Value() { VariantClear(this); }
};

/// Returns the variant as an integer, or -999 if it cannot be converted.
LONG Long(const Value& value) {
  Value out;
  return SUCCEEDED(VariantChangeType(&out, &value, 0, VT_I4)) ? out.lVal : -999;
}

HRESULT Failure(const Value& value, VARTYPE type) {
  Value out(7);
  const HRESULT status = VariantChangeType(&out, &value, 0, type);
  EXPECT_EQ(out.vt, VT_I4) << "the target is unchanged";
  EXPECT_EQ(out.lVal, 7);
  return status;
}

std::wstring Text(const Value& value) {
  Value out;
  if (FAILED(VariantChangeType(&out, &value, 0, VT_BSTR))) return L"(none)";
  return std::wstring(out.bstrVal, SysStringLen(out.bstrVal));
}

/// An object that shows its number of references.
struct Counted : IDispatch {
  HRESULT QueryInterface(const IID&, void**) override { return E_NOINTERFACE; }
  ULONG AddRef() override { return ++references; }
  ULONG Release() override { return --references; }
  HRESULT GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT GetIDsOfNames(const IID&, OLECHAR**, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  HRESULT Invoke(DISPID, const IID&, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                 UINT*) override {
    return E_NOTIMPL;
  }
  ULONG references = 1;
};

TEST(Variant, IsEmptyAtFirst) {
  Value value(5);
  VariantInit(&value);
  EXPECT_EQ(value.vt, VT_EMPTY);
  VariantInit(nullptr);
}

TEST(Variant, HoldsNoPointerAfterItIsCleared) {
  Value value(L"text");
  VariantClear(&value);
  EXPECT_EQ(value.bstrVal, nullptr);
  EXPECT_EQ(VARIANT{}.pdispVal, nullptr);
}

TEST(Variant, CopiesItsStringAndKeepsItsOwn) {
  const Value source(L"name");
  Value copy;
  ASSERT_EQ(VariantCopy(&copy, &source), S_OK);
  EXPECT_NE(copy.bstrVal, source.bstrVal);
  EXPECT_EQ(std::wstring(copy.bstrVal), L"name");
}

TEST(Variant, CountsAReferenceToItsObject) {
  Counted object;
  for (const VARTYPE type : {VT_DISPATCH, VT_UNKNOWN}) {
    Value source = Value::OfType(type);
    source.pdispVal = &object;
    object.AddRef();
    Value copy;
    ASSERT_EQ(VariantCopy(&copy, &source), S_OK);
    EXPECT_EQ(object.references, 3U);
    ASSERT_EQ(VariantClear(&copy), S_OK);
    ASSERT_EQ(VariantClear(&source), S_OK);
    EXPECT_EQ(object.references, 1U);
    EXPECT_EQ(source.vt, VT_EMPTY);
  }
}

TEST(Variant, MayHoldNoObjectAndNoString) {
  for (const VARTYPE type : {VT_DISPATCH, VT_UNKNOWN, VT_BSTR, VT_NULL, VT_ERROR}) {
    const Value source = Value::OfType(type);
    Value copy;
    EXPECT_EQ(VariantCopy(&copy, &source), S_OK);
    EXPECT_EQ(copy.vt, type);
  }
}

TEST(Variant, CopiesOntoItself) {
  Value value(L"same");
  EXPECT_EQ(VariantCopy(&value, &value), S_OK);
  EXPECT_EQ(std::wstring(value.bstrVal), L"same");
}

TEST(Variant, IsLeftUnchangedIfItsTypeIsUnknown) {
  Value value = Value::OfType(0x4003);
  Value copy(3);
  EXPECT_EQ(VariantClear(&value), DISP_E_BADVARTYPE);
  EXPECT_EQ(value.vt, 0x4003);
  EXPECT_EQ(VariantCopy(&copy, &value), DISP_E_BADVARTYPE);
  EXPECT_EQ(copy.lVal, 3);
  EXPECT_EQ(VariantCopy(&value, &copy), DISP_E_BADVARTYPE);
  value.vt = VT_EMPTY;
}

TEST(Variant, RefusesNullArguments) {
  Value value;
  EXPECT_EQ(VariantClear(nullptr), E_INVALIDARG);
  EXPECT_EQ(VariantCopy(nullptr, &value), E_INVALIDARG);
  EXPECT_EQ(VariantCopy(&value, nullptr), E_INVALIDARG);
  EXPECT_EQ(VariantChangeType(nullptr, &value, 0, VT_I4), E_INVALIDARG);
  EXPECT_EQ(VariantChangeType(&value, nullptr, 0, VT_I4), E_INVALIDARG);
}

TEST(VariantChange, CopiesAValueOfTheSameType) {
  const Value source(L"name");
  Value target(5);
  ASSERT_EQ(VariantChangeType(&target, &source, 0, VT_BSTR), S_OK);
  EXPECT_EQ(std::wstring(target.bstrVal), L"name");
  EXPECT_NE(target.bstrVal, source.bstrVal);
}

TEST(VariantChange, ConvertsAVariantInPlace) {
  Value value(L"12");
  ASSERT_EQ(VariantChangeType(&value, &value, 0, VT_I4), S_OK);
  EXPECT_EQ(value.vt, VT_I4);
  EXPECT_EQ(value.lVal, 12);
}

TEST(VariantChange, ReadsANumberFromText) {
  EXPECT_EQ(Long(Value(L"1")), 1);
  EXPECT_EQ(Long(Value(L"  -12 ")), -12);
  EXPECT_EQ(Long(Value(L"+7")), 7);
  EXPECT_EQ(Long(Value(L"1e2")), 100);
  EXPECT_EQ(Long(Value(L"-.5e1")), -5);
}

TEST(VariantChange, RefusesTextThatIsNotANumber) {
  for (const wchar_t* text : {L"", L"  ", L"one", L"1x", L"1 2", L"+-1", L"--1", L"inf", L"-nan",
                              L".", L"0x10", L"\u0661", L"1,5"}) {
    EXPECT_EQ(Failure(Value(text), VT_I4), DISP_E_TYPEMISMATCH) << std::wstring(text).size();
  }
  EXPECT_EQ(Failure(Value(std::wstring(1000, L'1').c_str()), VT_I4), DISP_E_TYPEMISMATCH);
}

TEST(VariantChange, RoundsToTheNearestAndEven) {
  EXPECT_EQ(Long(Value(2.4)), 2);
  EXPECT_EQ(Long(Value(2.5)), 2);
  EXPECT_EQ(Long(Value(3.5)), 4);
  EXPECT_EQ(Long(Value(2.6)), 3);
  EXPECT_EQ(Long(Value(-2.5)), -2);
  EXPECT_EQ(Long(Value(-3.5)), -4);
  EXPECT_EQ(Long(Value(-0.5)), 0);
}

TEST(VariantChange, ReportsAnOverflow) {
  EXPECT_EQ(Long(Value(2147483647.4)), 2147483647);
  EXPECT_EQ(Long(Value(-2147483648.5)), std::numeric_limits<LONG>::min());
  EXPECT_EQ(Failure(Value(2147483647.5), VT_I4), DISP_E_OVERFLOW);
  EXPECT_EQ(Failure(Value(-2147483649.0), VT_I4), DISP_E_OVERFLOW);
  EXPECT_EQ(Failure(Value(std::nan("")), VT_I4), DISP_E_OVERFLOW);
  EXPECT_EQ(Failure(Value(L"1e999"), VT_I4), DISP_E_OVERFLOW);
  EXPECT_EQ(Failure(Value(32768), VT_I2), DISP_E_OVERFLOW);
}

TEST(VariantChange, ConvertsOtherPlainTypesToANumber) {
  EXPECT_EQ(Long(Value()), 0);
  EXPECT_EQ(Long(Value::Short(-3)), -3);
  EXPECT_EQ(Long(Value::Bool(true)), -1);
}

TEST(VariantChange, RefusesObjectsErrorsAndUnknownTypes) {
  for (const VARTYPE type : {VARTYPE{VT_DISPATCH}, VARTYPE{VT_UNKNOWN}, VARTYPE{VT_ERROR},
                             VARTYPE{VT_NULL}, VARTYPE{0x4003}}) {
    Value value = Value::OfType(type);
    EXPECT_EQ(Failure(value, VT_I4), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(Failure(value, VT_BSTR), DISP_E_TYPEMISMATCH);
    value.vt = VT_EMPTY;
  }
  EXPECT_EQ(Failure(Value(2.0), VT_DISPATCH), DISP_E_TYPEMISMATCH);
}

TEST(VariantChange, WritesNumbersAsText) {
  EXPECT_EQ(Text(Value(-12)), L"-12");
  EXPECT_EQ(Text(Value::Short(7)), L"7");
  EXPECT_EQ(Text(Value(0.5)), L"0.5");
  EXPECT_EQ(Text(Value::Bool(true)), L"-1");
  EXPECT_EQ(Text(Value()), L"");
}

TEST(VariantChange, ConvertsToAShortARealAndATruthValue) {
  const Value seven(L"7");
  Value out;
  ASSERT_EQ(VariantChangeType(&out, &seven, 0, VT_I2), S_OK);
  EXPECT_EQ(out.iVal, 7);
  ASSERT_EQ(VariantChangeType(&out, &seven, 0, VT_R8), S_OK);
  EXPECT_EQ(out.dblVal, 7.0);
  ASSERT_EQ(VariantChangeType(&out, &seven, 0, VT_BOOL), S_OK);
  EXPECT_EQ(out.boolVal, VARIANT_TRUE);
}

}  // namespace
