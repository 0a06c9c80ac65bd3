#ifndef KELIFC_PLATFORM_EXPORT_H_
#define KELIFC_PLATFORM_EXPORT_H_

/// Marks a class or a function that the shared library exports. All others are hidden from hosts.
#if defined(_WIN32)
#if defined(KELIFC_BUILDING)
#define KELIFC_API __declspec(dllexport)
#else
#define KELIFC_API __declspec(dllimport)
#endif
#else
#define KELIFC_API __attribute__((visibility("default")))
#endif

/// Marks an interface of the object model. Off Windows it makes the type information of C++ the
/// same in the library and in its hosts. On Windows an interface needs no mark, since it has no
/// code.
#if defined(_WIN32)
#define KELIFC_INTERFACE
#else
#define KELIFC_INTERFACE KELIFC_API
#endif

#endif  // KELIFC_PLATFORM_EXPORT_H_
