#ifndef KELIFC_PLATFORM_COM_LOCAL_CLASSES_H_
#define KELIFC_PLATFORM_COM_LOCAL_CLASSES_H_

#include <vector>

#include "kelifc/platform/com_interfaces.h"

namespace KelIFC {

/// Makes the classes of the library known to the calling thread for as long as the object lives. It
/// is for hosts that link the library and do not enter it in the registry of the system. The
/// constructor initialises COM on the thread, and the destructor undoes that. Both must run on the
/// same thread.
///
/// Off Windows the classes are always known, so the object does nothing.
class KELIFC_API LocalClasses {
 public:
  LocalClasses();
  LocalClasses(const LocalClasses&) = delete;
  LocalClasses& operator=(const LocalClasses&) = delete;
  ~LocalClasses();

  /// Returns S_OK, or the first failure of the constructor.
  HRESULT GetStatus() const { return status; }

 private:
  HRESULT status = S_OK;
  std::vector<DWORD> cookies;
};

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_LOCAL_CLASSES_H_
