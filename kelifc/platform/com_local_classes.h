#ifndef KELIFC_PLATFORM_COM_LOCAL_CLASSES_H_
#define KELIFC_PLATFORM_COM_LOCAL_CLASSES_H_

#include <vector>

#include "kelifc/platform/com_interfaces.h"

namespace KelIFC {

/// For hosts that link the library and do not want it in the registry of the system: for as long as
/// it lives, this thread can make objects of the library's classes by their identifiers. It opens
/// the thread for the Component Object Model, and closes it again.
///
/// Off Windows the classes are always known, and it does nothing.
class KELIFC_API LocalClasses {
 public:
  LocalClasses();
  LocalClasses(const LocalClasses&) = delete;
  LocalClasses& operator=(const LocalClasses&) = delete;
  ~LocalClasses();

  /// S_OK, or the first failure.
  HRESULT GetStatus() const { return status; }

 private:
  HRESULT status = S_OK;
  std::vector<DWORD> cookies;
};

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_LOCAL_CLASSES_H_
