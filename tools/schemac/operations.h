#ifndef KELIFC_TOOLS_SCHEMAC_OPERATIONS_H_
#define KELIFC_TOOLS_SCHEMAC_OPERATIONS_H_

#include <string>
#include <string_view>

#include "tools/schemac/resolver.h"

namespace schemac {

/// The attribute of a name in a class or in the classes above it; null if there is none.
const Attribute* FindAttribute(const ReleaseModel& model, const ResolvedClass& type,
                               std::string_view name);

/// The C++ type that stores an attribute.
std::string StoredType(const Attribute& attribute, std::size_t release);

/// The C++ type that reads a value of a kind; empty for kinds that need a class.
std::string ValueType(Kind kind, std::size_t release);

/// The name of the data member of an attribute.
std::string MemberName(const std::string& attribute);

/// Turns the described operations of a class into C++: those that the name of an attribute tells
/// get a body, those with a signature are left to hand-written code. An operation on an attribute
/// that the release does not have is left out.
void ResolveOperations(ResolvedClass& type, const ReleaseModel& model);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_OPERATIONS_H_
