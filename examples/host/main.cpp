// Prints the storeys of a model. It uses the interfaces of the object model without the C++ layer,
// as a host of another compiler or language does.
#include <kelifc/kelifc.h>

#include <cstdio>

namespace {

using KelIFC::ComPtr;

/// The object that an operation returns. It is empty if the operation fails.
template <class Object, class Result>
ComPtr<Result> Fetch(Object& object, HRESULT (Object::*operation)(Result**)) {
  ComPtr<Result> result;
  (object.*operation)(result.Put());
  return result;
}

void Print(IGeoStorey& storey) {
  SHORT number = 0;
  double level = 0.0;
  BSTR name = nullptr;
  storey.get_Number(&number);
  storey.get_Level(&level);
  storey.get_Name(&name);
  std::printf("%3d  %8g  %s\n", number, level, KelIFC::NarrowText(name).c_str());
  SysFreeString(name);
}

}  // namespace

int main(int argc, char** argv) {
  ComPtr<IIFCServer> server;
  CoCreateInstance(CLSID_CoIFCServer, nullptr, CLSCTX_ALL, KelIFC::IidOf<IIFCServer>(),
                   reinterpret_cast<void**>(server.Put()));
  if (argc < 2 || !server) return 2;

  BSTR path = SysAllocString(KelIFC::WidePath(argv[1]).c_str());
  const HRESULT loaded = server->Load(path);
  SysFreeString(path);
  if (FAILED(loaded)) return 1;

  ComPtr<IGeoStructure> structure = Fetch(*server, &IIFCServer::get_Structure);
  ComPtr<IGeoStoreys> storeys = Fetch(*structure, &IGeoStructure::get_Storeys);
  ComPtr<IGeoStorey> storey;
  for (LONG i = 1; SUCCEEDED(storeys->Item(i, storey.Put())); ++i) Print(*storey);
}
