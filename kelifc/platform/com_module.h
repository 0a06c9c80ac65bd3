#ifndef KELIFC_PLATFORM_COM_MODULE_H_
#define KELIFC_PLATFORM_COM_MODULE_H_

namespace KelIFC {

// What keeps the library loaded: its living objects and the locks of hosts. Both are counted for
// the whole process and can be changed from any thread, since each thread can have objects of its
// own.

/// Returns the number of living objects that the library has created.
long LiveObjectCount();

/// Returns true if there is neither a living object nor a lock.
bool CanUnload();

/// Adds a lock if `lock` is true; otherwise removes one.
void LockModule(bool lock);

/// Counts one object of the library while it lives.
class LiveObject {
 public:
  LiveObject();
  LiveObject(const LiveObject&) = delete;
  LiveObject& operator=(const LiveObject&) = delete;
  ~LiveObject();
};

/// Replaces LiveObject in objects that do not keep the library loaded.
class UncountedObject {};

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_MODULE_H_
