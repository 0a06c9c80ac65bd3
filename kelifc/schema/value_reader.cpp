#include "kelifc/schema/value_reader.h"

#include <charconv>
#include <limits>
#include <utility>

#include "kelifc/core/other.h"
#include "kelifc/core/value.h"

namespace KelIFC {

namespace {

using Kind = AttributeValueKind;

constexpr std::string_view kBitPairs[2][2] = {{"00", "01"}, {"10", "11"}};

/// Returns the integer in a text. An integer out of range becomes the nearest bound.
std::int64_t IntegerIn(std::string_view text) {
  const bool isNegative = !text.empty() && text.front() == '-';
  if (!text.empty() && text.front() == '+') text.remove_prefix(1);
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc::result_out_of_range) return number;
  return isNegative ? std::numeric_limits<std::int64_t>::min()
                    : std::numeric_limits<std::int64_t>::max();
}

}  // namespace

AttributeValue ValueReader::Derived() {
  AttributeValue value;
  value.kind = Kind::kDerived;
  return value;
}

AttributeValue ValueReader::Of(const STRING& text, const IfcUnknown& /*holder*/) {
  return OfCharacters(text, text.GetExists());
}

AttributeValue ValueReader::Of(const TextAttribute& text, const IfcUnknown& /*holder*/) {
  return OfCharacters(text.GetText(), text.GetExists());
}

AttributeValue ValueReader::OfCharacters(std::string_view text, bool exists) {
  AttributeValue value;
  if (!exists) return value;
  value.kind = Kind::kText;
  value.text = text;
  return value;
}

AttributeValue ValueReader::Of(const ENUM& enumerator, const IfcUnknown& /*holder*/) {
  AttributeValue value;
  if (!enumerator.GetExists()) return value;
  value.kind = Kind::kEnumeration;
  value.text = enumerator;
  return value;
}

AttributeValue ValueReader::Of(const REAL& number, const IfcUnknown& /*holder*/) {
  AttributeValue value;
  if (!number.GetExists()) return value;
  value.kind = Kind::kReal;
  value.real = number;
  return value;
}

AttributeValue ValueReader::Of(const INTEGER& number, const IfcUnknown& /*holder*/) {
  AttributeValue value;
  if (!number.GetExists()) return value;
  value.kind = Kind::kInteger;
  value.integer = number;
  return value;
}

AttributeValue ValueReader::Of(const BOOLEAN& truth, const IfcUnknown& /*holder*/) {
  if (!truth.GetExists()) return {};
  return OfTruth(Kind::kBoolean, truth ? LOGICAL_TRUE : LOGICAL_FALSE);
}

AttributeValue ValueReader::Of(const LOGICAL& truth, const IfcUnknown& /*holder*/) {
  return truth.GetExists() ? OfTruth(Kind::kLogical, truth) : AttributeValue();
}

AttributeValue ValueReader::OfTruth(AttributeValueKind kind, LOGICAL_VALUE truth) {
  AttributeValue value;
  value.kind = kind;
  value.integer = truth;
  value.text = truth == LOGICAL_TRUE ? "T" : truth == LOGICAL_FALSE ? "F" : "U";
  return value;
}

AttributeValue ValueReader::Of(const BINARY<2>& bits, const IfcUnknown& /*holder*/) {
  struct Bits : BINARY<2> {
    static const auto& Of(const BINARY<2>& binary) { return binary.*(&Bits::flags); }
  };
  AttributeValue value;
  if (!bits.GetExists()) return value;
  value.kind = Kind::kBinary;
  value.text = kBitPairs[Bits::Of(bits)[0] == '1'][Bits::Of(bits)[1] == '1'];
  return value;
}

AttributeValue ValueReader::Of(const COORDINATES& numbers, const IfcUnknown& holder) {
  if (numbers.GetSize() == 0) return {};
  return OfList(&numbers, kOperations<COORDINATES>, holder);
}

AttributeValue ValueReader::OfList(const void* list,
                                   const AttributeValue::ListOperations& listOperations,
                                   const IfcUnknown& holder) {
  AttributeValue value;
  value.kind = Kind::kList;
  value.object = list;
  value.operations = &listOperations;
  value.holder = &holder;
  return value;
}

AttributeValue ValueReader::Of(const MEMBER& reference, const IfcUnknown& holder) {
  AttributeValue value;
  if (!reference.GetExists()) return value;
  value.kind = Kind::kReference;
  value.number = reference;
  value.holder = &holder;
  // If a host sets a reference while the attribute has an inline value, a save writes the
  // reference.
  if (value.number != 0) return value;
  const IfcUnknown* const instance = reference.GetInstance();
  return instance == nullptr ? Derived() : OfInlineInstance(*instance, value);
}

AttributeValue ValueReader::OfInlineInstance(const IfcUnknown& instance, AttributeValue value) {
  value.object = &instance;
  const auto* const other = dynamic_cast<const IfcOther*>(&instance);
  if (other == nullptr && !IsTypedValue(&instance)) return value;
  value.kind = Kind::kTyped;
  if (other == nullptr) {
    value.text = instance.GetStepName();
  } else {
    value.text = other->GetStepEntityName();
  }
  return value;
}

AttributeValue ValueReader::OfEnumeration(std::int32_t value, const EnumTextRow* table,
                                          std::size_t rowCount) {
  AttributeValue result;
  for (std::size_t i = 0; i < rowCount; ++i) {
    if (table[i].Value != value) continue;
    result.kind = Kind::kEnumeration;
    result.text = table[i].Text;
    break;
  }
  return result;
}

AttributeValue ValueReader::OfText(const StatementView& statement, std::size_t position,
                                   const IfcUnknown& holder) {
  AttributeValue value;
  value.holder = &holder;
  switch (statement.GetKind(position)) {
    case ATTRIBUTE_NONE:
    case ATTRIBUTE_UNSET:
      break;
    case ATTRIBUTE_DERIVED:
      value.kind = Kind::kDerived;
      break;
    case ATTRIBUTE_REFERENCE:
      value.kind = Kind::kReference;
      value.number = statement.GetReference(position);
      break;
    case ATTRIBUTE_INTEGER:
      value.kind = Kind::kInteger;
      value.integer = IntegerIn(statement.GetSource(position));
      break;
    case ATTRIBUTE_REAL:
      value.kind = Kind::kReal;
      value.real = statement.GetNumber(position);
      break;
    case ATTRIBUTE_TEXT:
      return OfRaw(Kind::kText, statement, position, value);
    case ATTRIBUTE_ENUMERATION:
      return OfRaw(Kind::kEnumeration, statement, position, value);
    case ATTRIBUTE_BINARY:
      return OfRaw(Kind::kBinary, statement, position, value);
    case ATTRIBUTE_LIST:
      return OfRaw(Kind::kList, statement, position, value);
    case ATTRIBUTE_TYPED:
      return OfRaw(Kind::kTyped, statement, position, value);
  }
  return value;
}

AttributeValue ValueReader::OfRaw(AttributeValueKind kind, const StatementView& statement,
                                  std::size_t position, AttributeValue value) {
  auto raw = std::make_shared<AttributeValue::Raw>();
  raw->parts = statement.GetList(position);
  raw->text = kind == Kind::kTyped ? std::string(statement.GetTypeName(position))
                                   : statement.GetText(position);
  value.kind = kind;
  value.text = raw->text;
  value.raw = std::move(raw);
  return value;
}

}  // namespace KelIFC
