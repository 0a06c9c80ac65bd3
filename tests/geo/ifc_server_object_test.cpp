#include "kelifc/geo/ifc_server_object.h"

#include <gtest/gtest.h>

#include "tests/geo/failing_factory.h"
#include "tests/geo/host.h"
#include "tests/geo/model_text.h"

namespace KelIFC {
namespace {

constexpr char kStorey[] =
    "#7=IFCBUILDINGSTOREY('3VvSUbOOfKXvqnv$9xajtg',$,'EG',$,$,$,$,$,.ELEMENT.,2.5);\n";

class ServerObject : public HostTest {
 protected:
  void SetUp() override { SetErrorInfo(0, nullptr); }
};

std::wstring Wide(const std::string& path) { return WidePath(path); }

/// Expects that a load fails with this message about its file.
void ExpectFailure(const std::string& path, const std::wstring& message) {
  const auto server = Create<IIFCServer>(CLSID_CoIFCServer);
  EXPECT_EQ(LoadFile(*server, path), STG_E_FILENOTFOUND);
  ComPtr<IErrorInfo> error;
  ASSERT_EQ(GetErrorInfo(0, error.Put()), S_OK);
  EXPECT_EQ(GetText(*error, &IErrorInfo::GetDescription), message);
}

TEST_F(ServerObject, ReportsAMissingFile) {
  ExpectFailure("/no/such/file.ifc", L"/no/such/file.ifc was not found or cannot be opened.");
  ExpectFailure("", L" was not found or cannot be opened.");
}

TEST_F(ServerObject, ReportsAFolder) {
  const std::string folder = testing::TempDir();
  ExpectFailure(folder, Wide(folder) + L" was not found or cannot be opened.");
}

TEST_F(ServerObject, ReportsAFileThatIsNotAModel) {
  const std::string text = ModelText("IFC2X3", "");
  const auto schema = text.find("FILE_SCHEMA");
  for (const std::string& bad :
       {std::string(), std::string("no model"),
        text.substr(0, schema) + text.substr(text.find("ENDSEC")), ModelText("IFC9", "")}) {
    const ModelFile file(bad);
    ExpectFailure(file.Path(), Wide(file.Path()) + L" is not an IFC file that can be read.");
  }
}

TEST_F(ServerObject, ReportsAReleaseThatCannotBeConverted) {
  for (const char* schema : {"IFC151", "IFC20_LONGFORM"}) {
    const ModelFile file(ModelText(schema, ""));
    ExpectFailure(file.Path(),
                  L"The IFC release of " + Wide(file.Path()) + L" cannot be converted.");
  }
}

TEST_F(ServerObject, KeepsAModelThatItCannotConvert) {
  const ModelFile file(ModelText("IFC20_LONGFORM", "#1=IFCCARTESIANPOINT((1.,2.));\n"));
  const auto server = CreateOwn<CoIFCServer>();
  EXPECT_EQ(LoadFile(*server, file.Path()), STG_E_FILENOTFOUND);
  IfcServer& model = static_cast<CoIFCServer&>(*server).Model();
  EXPECT_EQ(model.GetRelease(), IFC_RELEASE_20);
  EXPECT_NE(model.GetItem(std::size_t{1}), nullptr);
  const auto structure = GetObject(*server, &IIFCServer::get_Structure);
  EXPECT_EQ(CountOf(*GetObject(*structure, &IGeoStructure::get_Storeys)), 0);
}

TEST_F(ServerObject, SetsTheErrorObjectWithItsNameAndNoHelp) {
  const auto server = Create<IIFCServer>(CLSID_CoIFCServer);
  EXPECT_EQ(server->Load(nullptr), STG_E_FILENOTFOUND);
  ComPtr<IErrorInfo> error;
  ASSERT_EQ(GetErrorInfo(0, error.Put()), S_OK);
  GUID guid = CLSID_CoIFCServer;
  EXPECT_EQ(error->GetGUID(&guid), S_OK);
  EXPECT_EQ(guid, GUID{});
  EXPECT_EQ(GetText(*error, &IErrorInfo::GetSource), L"KelIFC.IFCServer.1");
  Bstr helpFile;
  EXPECT_EQ(error->GetHelpFile(helpFile.Put()), S_OK);
  EXPECT_EQ(helpFile.Get(), nullptr);
  EXPECT_EQ(GetValue(*error, &IErrorInfo::GetHelpContext), 0U);
}

TEST_F(ServerObject, InsertsTheNameUnchanged) {
  ExpectFailure("/%1/%2", L"/%1/%2 was not found or cannot be opened.");
}

TEST_F(ServerObject, SetsNoErrorObjectIfALoadSucceeds) {
  const auto server = LoadModel("IFC2X3", kStorey);
  ComPtr<IErrorInfo> error;
  EXPECT_EQ(GetErrorInfo(0, error.Put()), S_FALSE);
}

TEST_F(ServerObject, LoadsTheThreeReleasesThatCanBeConverted) {
  for (const char* schema : {"IFC2X_FINAL", "IFC2X2_FINAL", "IFC2X3", "IFC2X3_FINAL"}) {
    const auto server = LoadModel(schema, kStorey);
    const auto structure = GetObject(*server, &IIFCServer::get_Structure);
    EXPECT_EQ(CountOf(*GetObject(*structure, &IGeoStructure::get_Storeys)), 1) << schema;
  }
}

TEST_F(ServerObject, OpensFilesWithAnyName) {
  for (const char* name : {"h\xC3\xBCtte \xE2\x82\xAC", "h\xFCtte"}) {
    if (NarrowPath(WidePath(name)) != name) continue;  // the code page lacks a character
    const ModelFile file(ModelText("IFC2X3", kStorey), name);
    const auto server = Create<IIFCServer>(CLSID_CoIFCServer);
    EXPECT_EQ(LoadFile(*server, file.Path()), S_OK);
  }
}

TEST_F(ServerObject, DoesNotCutANameAtANullCharacter) {
  const ModelFile file(ModelText("IFC2X3", kStorey));
  const auto server = Create<IIFCServer>(CLSID_CoIFCServer);
  const std::wstring name = Wide(file.Path()) + L'\0' + L"more";
  EXPECT_EQ(server->Load(Bstr(name).Get()), STG_E_FILENOTFOUND);
}

TEST_F(ServerObject, ReturnsTheSameStructure) {
  const auto server = Create<IIFCServer>(CLSID_CoIFCServer);
  const auto first = GetObject(*server, &IIFCServer::get_Structure);
  EXPECT_EQ(GetObject(*server, &IIFCServer::get_Structure).Get(), first.Get());
  EXPECT_EQ(server->get_Structure(nullptr), E_POINTER);
}

TEST_F(ServerObject, ReturnsTheFailureToCreateAStructure) {
  const auto server = Create<IIFCServer>(CLSID_CoIFCServer);
  auto* out = reinterpret_cast<IGeoStructure*>(this);
  {
    const FailingClass failing(CLSID_CoGeoStructure, 0, E_OUTOFMEMORY);
    EXPECT_EQ(server->get_Structure(&out), E_OUTOFMEMORY);
    EXPECT_EQ(out, nullptr);
  }
  EXPECT_TRUE(GetObject(*server, &IIFCServer::get_Structure));
}

TEST_F(ServerObject, ReservesTheOtherOperation) {
  EXPECT_EQ(Create<IIFCServer>(CLSID_CoIFCServer)->Reserved2(nullptr), E_NOTIMPL);
}

TEST_F(ServerObject, ReleasesItsStructureAtItsEnd) {
  auto server = LoadModel("IFC2X3", kStorey);
  auto structure = GetObject(*server, &IIFCServer::get_Structure);
  auto storeys = GetObject(*structure, &IGeoStructure::get_Storeys);
  EXPECT_EQ(LiveObjectCount(), 4);
  server.Reset();
  EXPECT_EQ(LiveObjectCount(), 3);
  structure.Reset();
  EXPECT_EQ(LiveObjectCount(), 2);
}

}  // namespace
}  // namespace KelIFC
