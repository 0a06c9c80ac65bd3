#ifndef KELIFC_TOOLS_COMGEN_EMIT_TEXT_H_
#define KELIFC_TOOLS_COMGEN_EMIT_TEXT_H_

#include <string>

#include "tools/comgen/emitters.h"

namespace comgen {

/// The line at the head of every generated file.
std::string GeneratedBy(const Description& description);

/// An identifier as the members of a GUID, without the outer braces.
std::string IdentifierMembers(const std::string& identifier);

/// The C++ type of an argument.
std::string ArgumentType(const Argument& argument);

/// The name of the class template or class that answers the reserved operations of an interface.
std::string ReservedName(const Interface& interface);

/// True if an interface or one of its bases has reserved operations.
bool HasReserved(const Description& description, const Interface& interface);

/// Writes an operation that answers E_NOTIMPL.
void EmitNotImplemented(TextWriter& out, const Operation& operation);

}  // namespace comgen

#endif  // KELIFC_TOOLS_COMGEN_EMIT_TEXT_H_
