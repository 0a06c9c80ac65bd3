#ifndef KELIFC_TOOLS_COMGEN_RESOLVER_H_
#define KELIFC_TOOLS_COMGEN_RESOLVER_H_

#include "tools/comgen/description.h"

namespace comgen {

/// Looks up every name, checks what holds the description together, and names the reserved places
/// after their position among all operations of the interface, from 1. Throws
/// schemac::DescriptionError for the first thing that is wrong.
///
/// What it refuses: names, identifiers and program names that stand twice; a base, kind, interface
/// or operation that is not described; an interface that stands ahead of its base; two operations
/// of one name in an interface, or in two interfaces of a class, which one C++ function would
/// override; a program name that is not LIBRARY.NAME.VERSION; a live operation without a doc
/// comment; the kind "pointer" outside reserved places; a library that is missing.
void Resolve(Description& description);

}  // namespace comgen

#endif  // KELIFC_TOOLS_COMGEN_RESOLVER_H_
