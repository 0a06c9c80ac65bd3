#ifndef KELIFC_PLATFORM_COM_CLASS_H_
#define KELIFC_PLATFORM_COM_CLASS_H_

#include <span>

#include "kelifc/platform/com_types.h"

namespace KelIFC {

/// A class of which hosts can create objects.
struct ComClass {
  CLSID clsid;

  /// The program name with the version, such as "KelIFC.GeoStorey.1". The class is known by the
  /// name without the version as well.
  const OLECHAR* progId;

  /// Creates an object and stores a counted pointer to its interface `iid`.
  HRESULT (*make)(const IID& iid, void** out);
};

/// Returns all classes of the library. The folder kelifc/geo defines this function.
std::span<const ComClass> ComClasses();

/// The identifier and the version of a type library.
struct TypeLibraryVersion {
  GUID identifier;
  WORD major;
  WORD minor;
};

/// Returns the type library of the classes. The folder kelifc/geo defines this function.
TypeLibraryVersion ComTypeLibrary();

/// Stores a counted pointer to the interface `iid` of a class object of the library. Returns
/// CLASS_E_CLASSNOTAVAILABLE and stores null if no class has the identifier. Returns E_POINTER if
/// `out` is null.
HRESULT GetClassObject(const CLSID& clsid, const IID& iid, void** out);

/// Creates a class object for use inside the process: it does not count as a living object of the
/// library.
HRESULT GetLocalClassObject(const ComClass& type, const IID& iid, void** out);

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_CLASS_H_
