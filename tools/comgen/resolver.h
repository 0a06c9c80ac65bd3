#ifndef KELIFC_TOOLS_COMGEN_RESOLVER_H_
#define KELIFC_TOOLS_COMGEN_RESOLVER_H_

#include "tools/comgen/description.h"

namespace comgen {

/// Looks up every name, checks the description as a whole, and names the reserved operations by
/// their position among all operations of the interface, from 1. Throws schemac::DescriptionError
/// for the first mistake:
///
///  - a name, an identifier or a program name that is defined twice;
///  - a base, a kind, an interface or an operation that is not described;
///  - an interface that is described before its base;
///  - two operations with the same name in an interface, or in two interfaces of a class, which one
///    C++ function would override;
///  - a program name that is not LIBRARY.NAME.VERSION;
///  - an operation without a doc comment, unless it is reserved;
///  - the kind "pointer" outside reserved operations;
///  - a missing library.
void Resolve(Description& description);

}  // namespace comgen

#endif  // KELIFC_TOOLS_COMGEN_RESOLVER_H_
