#ifndef KELIFC_TESTS_KNOWN_CLASSES_H_
#define KELIFC_TESTS_KNOWN_CLASSES_H_

namespace KelIFC {

/// Makes the classes of the library known to the thread of the tests. Classes that a test has
/// registered before are used first. Every test program calls this function at its start.
void KnowClasses();

/// Makes the classes unknown again.
void ForgetClasses();

}  // namespace KelIFC

#endif  // KELIFC_TESTS_KNOWN_CLASSES_H_
