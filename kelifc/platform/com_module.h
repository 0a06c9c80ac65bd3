#ifndef KELIFC_PLATFORM_COM_MODULE_H_
#define KELIFC_PLATFORM_COM_MODULE_H_

namespace KelIFC {

// What keeps the library in use: its living objects, and the locks that hosts put on it. Both count
// over all threads, since trees of different threads live side by side.

/// The number of objects that the library has made and that still live.
long LiveObjectCount();

/// True if neither an object nor a lock is left.
bool CanUnload();

/// Puts a lock on the library, or takes one away.
void LockModule(bool lock);

/// Counts one object for as long as it lives.
class LiveObject {
 public:
  LiveObject();
  LiveObject(const LiveObject&) = delete;
  LiveObject& operator=(const LiveObject&) = delete;
  ~LiveObject();
};

/// Stands in for LiveObject in objects that are the system's, not the library's.
class UncountedObject {};

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_MODULE_H_
