#ifndef KELIFC_TESTS_KNOWN_CLASSES_H_
#define KELIFC_TESTS_KNOWN_CLASSES_H_

namespace KelIFC {

/// Makes the classes of the library known to the thread of the tests, behind those that a test has
/// put in their place. Every test program begins with it.
void KnowClasses();

/// Takes them back.
void ForgetClasses();

}  // namespace KelIFC

#endif  // KELIFC_TESTS_KNOWN_CLASSES_H_
