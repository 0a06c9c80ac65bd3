#ifndef KELIFC_TOOLS_COMGEN_EMITTERS_H_
#define KELIFC_TOOLS_COMGEN_EMITTERS_H_

#include <string>

#include "tools/comgen/description.h"
#include "tools/schemac/emit_common.h"

namespace comgen {

using schemac::Files;
using schemac::TextWriter;

/// The header for hosts: interfaces and identifiers.
void EmitInterfaces(const Description& description, Files& files);

/// What the classes derive from: their interfaces with the reserved operations answered.
void EmitBases(const Description& description, Files& files);

/// The table of the classes that can be made, and the version, "MAJOR.MINOR", of their type
/// library.
void EmitClassTable(const Description& description, const std::string& version, Files& files);

/// The interface definition for a type library of this version, "MAJOR.MINOR". Every operation has
/// an identifier of its own over the whole library, so that a name can be looked up over the
/// interfaces of a class.
void EmitIdl(const Description& description, const std::string& version, Files& files);

/// A test that compares the order of the operations with the compiler's layout.
void EmitOrderTest(const Description& description, Files& files);

}  // namespace comgen

#endif  // KELIFC_TOOLS_COMGEN_EMITTERS_H_
