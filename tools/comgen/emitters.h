#ifndef KELIFC_TOOLS_COMGEN_EMITTERS_H_
#define KELIFC_TOOLS_COMGEN_EMITTERS_H_

#include "tools/comgen/description.h"
#include "tools/schemac/emit_common.h"

namespace comgen {

using schemac::Files;
using schemac::TextWriter;

/// The header for hosts: interfaces and identifiers.
void EmitInterfaces(const Description& description, Files& files);

/// What the classes derive from: their interfaces with the reserved operations answered.
void EmitBases(const Description& description, Files& files);

/// The table of the classes that can be made.
void EmitClassTable(const Description& description, Files& files);

/// A test that compares the order of the operations with the compiler's layout.
void EmitOrderTest(const Description& description, Files& files);

}  // namespace comgen

#endif  // KELIFC_TOOLS_COMGEN_EMITTERS_H_
