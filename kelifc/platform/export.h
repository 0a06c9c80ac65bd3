#ifndef KELIFC_PLATFORM_EXPORT_H_
#define KELIFC_PLATFORM_EXPORT_H_

/// Marks what the shared library shows to a host; everything else stays inside.
#if defined(_WIN32)
#if defined(KELIFC_BUILDING)
#define KELIFC_API __declspec(dllexport)
#else
#define KELIFC_API __declspec(dllimport)
#endif
#else
#define KELIFC_API __attribute__((visibility("default")))
#endif

/// Marks an interface, of which the library shows nothing but its form: where a mark is about code,
/// hosts need none of it.
#if defined(_WIN32)
#define KELIFC_INTERFACE
#else
#define KELIFC_INTERFACE KELIFC_API
#endif

#endif  // KELIFC_PLATFORM_EXPORT_H_
