#ifndef KELIFC_TESTS_PATHS_H_
#define KELIFC_TESTS_PATHS_H_

namespace KelIFC {

/// Folders of the source tree, as absolute paths. Only one source file is compiled with them, so
/// that a compiler cache can serve the objects of all others to a second checkout.
extern const char* const kExamplesDir;
extern const char* const kSourceDir;

}  // namespace KelIFC

#endif  // KELIFC_TESTS_PATHS_H_
