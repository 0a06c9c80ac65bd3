#include "tools/comgen/resolver.h"

#include <algorithm>
#include <set>

namespace comgen {

namespace {

using schemac::DescriptionError;

/// A set of names or identifiers that are in use.
class Taken {
 public:
  void Add(const Place& place, const std::string& what, const std::string& text) {
    if (!texts.insert(text).second) {
      throw DescriptionError(place, what + " '" + text + "' is defined twice");
    }
  }

 private:
  std::set<std::string> texts;
};

void CheckType(const Description& description, const Type& type, bool isReserved) {
  if (type.kind == Kind::kPointer && !isReserved) {
    throw DescriptionError(type.place, "a pointer is allowed in reserved operations only");
  }
  if (type.kind == Kind::kInterface && description.Find(type.interface) == nullptr) {
    throw DescriptionError(type.place,
                           "expected a kind or an interface, not '" + type.interface + "'");
  }
}

void CheckOperation(const Description& description, const Operation& operation) {
  const bool isReserved = operation.role == Operation::Role::kReserved;
  if (!isReserved && operation.doc.empty()) {
    throw DescriptionError(operation.place, "a doc comment is missing");
  }
  Taken arguments;
  for (const Argument& argument : operation.arguments) {
    CheckType(description, argument.type, isReserved);
    if (!isReserved) arguments.Add(argument.type.place, "the argument", argument.name);
  }
}

void NameReserved(const Description& description, Interface& interface) {
  std::size_t position = 0;
  if (!interface.base.empty()) {
    position = description.AllOperations(*description.Find(interface.base)).size();
  }
  for (Operation& operation : interface.operations) {
    ++position;
    if (operation.role == Operation::Role::kReserved) {
      operation.name = "Reserved" + std::to_string(position);
    }
  }
}

/// `known` contains the names of the interfaces that were described before this one.
void ResolveInterface(const Description& description, const std::set<std::string>& known,
                      Interface& interface) {
  if (!interface.base.empty() && known.count(interface.base) == 0) {
    throw DescriptionError(interface.place, "the base '" + interface.base + "' of '" +
                                                interface.name + "' is not described before it");
  }
  NameReserved(description, interface);
  for (const Operation& operation : interface.operations) CheckOperation(description, operation);
  Taken names;
  for (const Operation* operation : description.AllOperations(interface)) {
    names.Add(operation->place, "the operation", operation->name);
  }
}

bool IsProgId(const std::string& text) {
  const auto dots = std::count(text.begin(), text.end(), '.');
  const auto first = text.find('.');
  const auto last = text.rfind('.');
  return dots == 2 && first > 0 && last > first + 1 && last + 1 < text.size();
}

void CheckOmission(const Description& description, const Class& type, const Omission& omission) {
  const auto& names = type.interfaces;
  if (std::find(names.begin(), names.end(), omission.interface) == names.end()) {
    throw DescriptionError(omission.place,
                           "'" + type.name + "' has no interface '" + omission.interface + "'");
  }
  if (omission.operation.empty()) return;
  const auto operations = description.AllOperations(*description.Find(omission.interface));
  const bool isThere = std::any_of(
      operations.begin(), operations.end(),
      [&](const Operation* operation) { return operation->name == omission.operation; });
  if (!isThere) {
    throw DescriptionError(omission.place, "'" + omission.interface + "' has no operation '" +
                                               omission.operation + "'");
  }
}

void CheckClass(const Description& description, const Class& type) {
  if (!IsProgId(type.progId)) {
    throw DescriptionError(type.place,
                           "the program name '" + type.progId + "' is not LIBRARY.NAME.VERSION");
  }
  Taken interfaces;
  for (const std::string& name : type.interfaces) {
    if (description.Find(name) == nullptr) {
      throw DescriptionError(type.place, "there is no interface '" + name + "'");
    }
    interfaces.Add(type.place, "the interface", name);
  }
  if (description.Roots(type).front()->name != type.interfaces.front()) {
    throw DescriptionError(type.place, "the first interface is a base of another one");
  }
  Taken operations;
  for (const Interface* root : description.Roots(type)) {
    for (const Operation* operation : description.AllOperations(*root)) {
      if (operation->role == Operation::Role::kReserved) continue;
      operations.Add(type.place, "the operation", operation->name);
    }
  }
  for (const Omission& omission : type.omissions) CheckOmission(description, type, omission);
}

}  // namespace

void Resolve(Description& description) {
  if (description.library.name.empty()) {
    throw DescriptionError({description.file, 1, 1}, "there is no library");
  }
  Taken names;
  Taken identifiers;
  std::set<std::string> known;
  identifiers.Add({description.file, 1, 1}, "the identifier", description.library.identifier);
  for (Interface& interface : description.interfaces) {
    names.Add(interface.place, "the name", interface.name);
    identifiers.Add(interface.place, "the identifier", interface.identifier);
    ResolveInterface(description, known, interface);
    known.insert(interface.name);
  }
  Taken progIds;
  for (const Class& type : description.classes) {
    names.Add(type.place, "the name", type.name);
    identifiers.Add(type.place, "the identifier", type.identifier);
    progIds.Add(type.place, "the program name", type.progId);
    CheckClass(description, type);
  }
}

}  // namespace comgen
