#ifndef KELIFC_TOOLS_COMGEN_EMIT_TEXT_H_
#define KELIFC_TOOLS_COMGEN_EMIT_TEXT_H_

#include <string>

#include "tools/comgen/emitters.h"

namespace comgen {

/// Returns the first line of every generated file.
std::string GeneratedBy(const Description& description);

/// Returns a generated header with this content between include guards.
std::string GuardedHeader(const Description& description, const std::string& path,
                          const std::string& content);

/// Returns an identifier as the initialisers of the members of a GUID, without the outer braces.
std::string IdentifierMembers(const std::string& identifier);

/// The languages in which comgen writes interfaces.
enum class Language { kCpp, kIdl };

/// Returns the type of an argument.
std::string ArgumentType(const Argument& argument, Language language);

/// Returns the name of the class or class template that implements the reserved operations of an
/// interface.
std::string ReservedName(const Interface& interface);

/// Returns true if an interface or one of its bases has reserved operations.
bool HasReserved(const Description& description, const Interface& interface);

/// Writes an operation that returns E_NOTIMPL.
void EmitNotImplemented(TextWriter& out, const Operation& operation);

}  // namespace comgen

#endif  // KELIFC_TOOLS_COMGEN_EMIT_TEXT_H_
