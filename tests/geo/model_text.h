#ifndef KELIFC_TESTS_GEO_MODEL_TEXT_H_
#define KELIFC_TESTS_GEO_MODEL_TEXT_H_

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <string>

#include "tests/geo/host.h"

namespace KelIFC {

/// A file with a text. The destructor removes it.
class ModelFile {
 public:
  explicit ModelFile(const std::string& text, const std::string& name = "model") {
    static int count = 0;
    path = testing::TempDir() + name + "-" + std::to_string(getpid()) + "-" +
           std::to_string(++count) + ".ifc";
    std::ofstream(path, std::ios::binary) << text;
  }
  ModelFile(const ModelFile&) = delete;
  ModelFile& operator=(const ModelFile&) = delete;
  ~ModelFile() { std::remove(path.c_str()); }

  const std::string& Path() const { return path; }

 private:
  std::string path;
};

/// Returns the text of a STEP file with a schema and instances.
inline std::string ModelText(const std::string& schema, const std::string& data) {
  return "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\n"
         "FILE_NAME('','',(''),(''),'','','');\nFILE_SCHEMA(('" +
         schema + "'));\nENDSEC;\nDATA;\n" + data + "ENDSEC;\nEND-ISO-10303-21;\n";
}

/// Loads a file and returns the status.
inline HRESULT LoadFile(IIFCServer& server, const std::string& path) {
  return server.Load(Bstr(WidePath(path)).Get());
}

/// Returns a server object that has loaded a model.
inline ComPtr<IIFCServer> LoadModel(const std::string& schema, const std::string& data) {
  const ModelFile file(ModelText(schema, data));
  auto server = Create<IIFCServer>(CLSID_CoIFCServer);
  EXPECT_EQ(LoadFile(*server, file.Path()), S_OK);
  return server;
}

}  // namespace KelIFC

#endif  // KELIFC_TESTS_GEO_MODEL_TEXT_H_
