#include "tools/comgen/emit_text.h"

#include <algorithm>
#include <string_view>

namespace comgen {

namespace {

/// Where the bytes of the last member begin in the text of an identifier.
constexpr std::size_t kByteStarts[] = {19, 21, 24, 26, 28, 30, 32, 34};

std::string_view ValueType(const Type& type) {
  switch (type.kind) {
    case Kind::kPointer:
      return "void*";
    case Kind::kLong:
      return "LONG";
    case Kind::kShort:
      return "SHORT";
    case Kind::kDouble:
      return "double";
    case Kind::kBool:
      return "VARIANT_BOOL";
    case Kind::kString:
      return "BSTR";
    case Kind::kVariant:
      return "VARIANT";
    case Kind::kUnknown:
      return "IUnknown*";
    case Kind::kInterface:
      break;
  }
  return "";
}

}  // namespace

std::string GeneratedBy(const Description& description) {
  return "// Made by comgen from " + description.file + "; change the description instead.";
}

std::string IdentifierMembers(const std::string& identifier) {
  std::string bytes;
  for (const std::size_t start : kByteStarts) {
    bytes += (bytes.empty() ? "0x" : ", 0x") + identifier.substr(start, 2);
  }
  return "0x" + identifier.substr(0, 8) + ", 0x" + identifier.substr(9, 4) + ", 0x" +
         identifier.substr(14, 4) + ", {" + bytes + "}";
}

std::string ArgumentType(const Argument& argument) {
  const Type& type = argument.type;
  const std::string value =
      type.kind == Kind::kInterface ? type.interface + "*" : std::string(ValueType(type));
  return argument.isOut ? value + "*" : value;
}

std::string ReservedName(const Interface& interface) {
  return interface.name.substr(1) + "Reserved";
}

bool HasReserved(const Description& description, const Interface& interface) {
  const auto operations = description.AllOperations(interface);
  return std::any_of(operations.begin(), operations.end(), [](const Operation* operation) {
    return operation->role == Operation::Role::kReserved;
  });
}

void EmitNotImplemented(TextWriter& out, const Operation& operation) {
  std::vector<std::string> types;
  for (const Argument& argument : operation.arguments) types.push_back(ArgumentType(argument));
  out.Call("  HRESULT " + operation.name, types, " override { return E_NOTIMPL; }");
}

}  // namespace comgen
