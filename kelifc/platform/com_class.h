#ifndef KELIFC_PLATFORM_COM_CLASS_H_
#define KELIFC_PLATFORM_COM_CLASS_H_

#include <span>

#include "kelifc/platform/com_types.h"

namespace KelIFC {

/// A class that hosts can make objects of.
struct ComClass {
  CLSID clsid;

  /// Name and version, "KelIFC.GeoStorey.1"; the class is known without the version too.
  const OLECHAR* progId;

  /// Makes an object and gives its interface `iid`, counted.
  HRESULT (*make)(const IID& iid, void** out);
};

/// All classes of this library. The object model defines it.
std::span<const ComClass> ComClasses();

/// What a type library is known by.
struct TypeLibraryVersion {
  GUID identifier;
  WORD major;
  WORD minor;
};

/// The type library of these classes. The object model defines it.
TypeLibraryVersion ComTypeLibrary();

/// The class object of one of these classes, through its interface `iid`. An identifier that is
/// none of them gives CLASS_E_CLASSNOTAVAILABLE and null; a null `out` gives E_POINTER.
HRESULT GetClassObject(const CLSID& clsid, const IID& iid, void** out);

/// The class object of a class for use within the process: it does not keep the library in use.
HRESULT GetLocalClassObject(const ComClass& type, const IID& iid, void** out);

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_CLASS_H_
