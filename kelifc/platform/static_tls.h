#ifndef KELIFC_PLATFORM_STATIC_TLS_H_
#define KELIFC_PLATFORM_STATIC_TLS_H_

#include <cstdlib>

// KELIFC_STATIC_TLS marks a thread-local variable that is accessed very often. The system allocates
// such a variable when a thread starts, at a fixed place. So an access from a shared library needs
// no call of a function. The GNU C library reserves about 1,600 bytes for all libraries of a
// process that are loaded later, so mark only a few variables of the size of a pointer.
#ifdef __GLIBC__
#define KELIFC_STATIC_TLS __attribute__((tls_model("initial-exec")))
#else
#define KELIFC_STATIC_TLS
#endif

#endif  // KELIFC_PLATFORM_STATIC_TLS_H_
