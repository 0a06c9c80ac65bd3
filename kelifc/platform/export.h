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

#endif  // KELIFC_PLATFORM_EXPORT_H_
