// A host that is compiled with the interfaces. It creates an object of each class in the type
// library, queries each of its interfaces, and reads a model. It is not linked with the library:
// the system finds the library by the registry.

#include <cstdio>
#include <stdexcept>
#include <string>

#include "kelifc/geo/interfaces.h"
#include "kelifc/platform/com_bstr.h"
#include "kelifc/platform/com_ptr.h"

namespace {

using KelIFC::Bstr;
using KelIFC::ComPtr;

void Check(HRESULT status, const char* what) {
  if (status >= 0) return;
  char text[200];
  std::snprintf(text, sizeof text, "%s gave 0x%08lX", what, static_cast<unsigned long>(status));
  throw std::runtime_error(text);
}

void Require(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(what);
}

/// The attributes of a type. The destructor releases them.
class Attributes {
 public:
  explicit Attributes(ITypeInfo& info) : info(info) {
    Check(info.GetTypeAttr(&attributes), "GetTypeAttr");
  }
  Attributes(const Attributes&) = delete;
  Attributes& operator=(const Attributes&) = delete;
  ~Attributes() { info.ReleaseTypeAttr(attributes); }
  const TYPEATTR* operator->() const { return attributes; }

 private:
  ITypeInfo& info;
  TYPEATTR* attributes = nullptr;
};

void* Query(IUnknown& object, const IID& iid) {
  void* found = nullptr;
  Check(object.QueryInterface(iid, &found), "QueryInterface");
  static_cast<IUnknown*>(found)->Release();
  return found;
}

/// Returns the number of interfaces of the class.
int TryClass(ITypeInfo& type) {
  const Attributes attributes(type);
  ComPtr<IUnknown> object;
  Check(CoCreateInstance(attributes->guid, nullptr, CLSCTX_ALL, IID_IUnknown,
                         reinterpret_cast<void**>(object.Put())),
        "CoCreateInstance");
  Require(Query(*object, IID_IDispatch) != nullptr, "IDispatch");
  Require(Query(*object, IID_ISupportErrorInfo) != nullptr, "ISupportErrorInfo");
  for (UINT i = 0; i < attributes->cImplTypes; ++i) {
    HREFTYPE reference = 0;
    ComPtr<ITypeInfo> face;
    Check(type.GetRefTypeOfImplType(i, &reference), "GetRefTypeOfImplType");
    Check(type.GetRefTypeInfo(reference, face.Put()), "GetRefTypeInfo");
    const Attributes facts(*face);
    void* const found = Query(*object, facts->guid);
    const bool isObject = facts->guid == KelIFC::IidOf<IGeoObject>();
    Require(!isObject || found == Query(*object, IID_IDispatch), "IGeoObject is another pointer");
  }
  return attributes->cImplTypes;
}

void TryClasses() {
  ComPtr<ITypeLib> library;
  Check(LoadRegTypeLib(LIBID_KELIFCLib, 25, 0, LOCALE_NEUTRAL, library.Put()), "LoadRegTypeLib");
  int classes = 0;
  int interfaces = 0;
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    ComPtr<ITypeInfo> type;
    Check(library->GetTypeInfo(i, type.Put()), "GetTypeInfo");
    if (Attributes(*type)->typekind != TKIND_COCLASS) continue;
    ++classes;
    interfaces += TryClass(*type);
  }
  std::printf("%d classes with %d interfaces\n", classes, interfaces);
}

/// Calls an operation as a script engine does if it does not use the result.
HRESULT CallMethod(IDispatch& object, DISPID id, LONG argument, UINT count, VARIANT* result) {
  VARIANT value = {};
  value.vt = VT_I4;
  value.lVal = argument;
  DISPPARAMS arguments = {&value, nullptr, count, 0};
  EXCEPINFO exception = {};
  const HRESULT status = object.Invoke(id, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD, &arguments,
                                       result, &exception, nullptr);
  for (BSTR text : {exception.bstrSource, exception.bstrDescription, exception.bstrHelpFile}) {
    SysFreeString(text);
  }
  return status == DISP_E_EXCEPTION ? exception.scode : status;
}

/// Reads properties with the method flag alone, with and without a place for the value.
void CallLate(IDispatch& collection) {
  Require(CallMethod(collection, DISPID_VALUE, 0, 1, nullptr) == E_INVALIDARG, "Item(0)");
  Require(CallMethod(collection, DISPID_VALUE, 1, 1, nullptr) == S_OK, "Item(1)");
  VARIANT items = {};
  Require(CallMethod(collection, DISPID_NEWENUM, 0, 0, &items) == S_OK, "_NewEnum");
  Require(items.vt == VT_UNKNOWN && Query(*items.punkVal, IID_IEnumVARIANT) != nullptr,
          "IEnumVARIANT");
  VariantClear(&items);
}

void ReadModel(const wchar_t* path) {
  ComPtr<IIFCServer> server;
  CLSID clsid = {};
  Check(CLSIDFromProgID(L"KelIFC.IFCServer.1", &clsid), "CLSIDFromProgID");
  Check(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, KelIFC::IidOf<IIFCServer>(),
                         reinterpret_cast<void**>(server.Put())),
        "CoCreateInstance");
  Check(server->Load(Bstr(path).Get()), "Load");
  ComPtr<IGeoStructure> structure;
  ComPtr<IGeoWalls> walls;
  Check(server->get_Structure(structure.Put()), "get_Structure");
  Check(structure->get_Walls(walls.Put()), "get_Walls");
  LONG count = 0;
  Check(walls->Count(&count), "Count");
  CallLate(*walls);
  std::printf("%ld walls\n", static_cast<long>(count));
  for (LONG i = 1; i <= count; ++i) {
    ComPtr<IGeoWall> wall;
    Bstr name;
    Check(walls->Item(i, wall.Put()), "Item");
    Check(wall->get_Name(name.Put()), "get_Name");
    std::printf("%ls\n", name.Get());
  }
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc != 2) return 64;
  int status = 0;
  CoInitialize(nullptr);
  try {
    TryClasses();
    ReadModel(argv[1]);
  } catch (const std::exception& failure) {
    std::printf("%s\n", failure.what());
    status = 1;
  }
  CoUninitialize();
  return status;
}
