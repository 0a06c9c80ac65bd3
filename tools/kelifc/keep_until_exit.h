#ifndef TOOLS_KELIFC_KEEP_UNTIL_EXIT_H_
#define TOOLS_KELIFC_KEEP_UNTIL_EXIT_H_

#include <utility>

namespace command {

/// Keeps an object, such as a loaded model, until the process ends. Its destructor is never called:
/// to destroy the instances of a model one by one takes a tenth of the time of a command, while the
/// system frees the memory of an ended process at once.
template <class Object>
Object& KeepUntilExit(Object object) {
  static Object* kept = nullptr;  // keeps the object reachable for leak checkers
  kept = new Object(std::move(object));
  return *kept;
}

}  // namespace command

#endif  // TOOLS_KELIFC_KEEP_UNTIL_EXIT_H_
