#ifndef KELIFC_TOOLS_COMGEN_EMITTERS_H_
#define KELIFC_TOOLS_COMGEN_EMITTERS_H_

#include <string>

#include "tools/comgen/description.h"
#include "tools/schemac/emit_common.h"

namespace comgen {

using schemac::Files;
using schemac::TextWriter;

/// Generates the header for hosts: interfaces and identifiers.
void EmitInterfaces(const Description& description, Files& files);

/// Generates the bases of the classes: their interfaces, with the reserved operations implemented.
void EmitBases(const Description& description, Files& files);

/// Generates the table of the classes of which objects can be created, and the version of their
/// type library, "MAJOR.MINOR".
void EmitClassTable(const Description& description, const std::string& version, Files& files);

/// Generates the interface definition for a type library of this version, "MAJOR.MINOR". The
/// identifiers of operations are unique in the library, so that a name can be looked up in all
/// interfaces of a class.
void EmitIdl(const Description& description, const std::string& version, Files& files);

/// Generates a test that compares the order of the operations with the layout of the compiler.
void EmitOrderTest(const Description& description, Files& files);

}  // namespace comgen

#endif  // KELIFC_TOOLS_COMGEN_EMITTERS_H_
