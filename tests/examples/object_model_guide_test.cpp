#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "kelifc/kelifc.h"

#include "tests/examples/document.h"
#include "tests/paths.h"

// The C++ of docs/object-model.md. The first test finds the lines of each block of the page in this
// file, so that the page shows nothing that is not compiled and run here.

namespace {

using document_test::LinesOf;
using document_test::ReadSource;

TEST(ObjectModelGuide, ShowsWhatIsTestedHere) {
  const auto source = LinesOf(ReadSource("tests/examples/object_model_guide_test.cpp"));
  const auto blocks = document_test::BlocksOf(ReadSource("docs/object-model.md"), "cpp");
  EXPECT_EQ(blocks.size(), 11U);
  for (const std::string& block : blocks) {
    const auto lines = LinesOf(block);
    EXPECT_NE(std::search(source.begin(), source.end(), lines.begin(), lines.end()), source.end())
        << block;
  }
}

std::string Shipped(const std::string& model) {
  return std::string(KelIFC::kExamplesDir) + "/" + model;
}

TEST(ObjectModelGuide, WalksACollectionWithTheCppLayer) {
  const std::string path = Shipped("house.ifc");
  std::string names;
  const auto [server, structure] = KelIFC::OpenModel(path);
  for (const auto& column : KelIFC::Items(structure, &IGeoStructure::get_Columns)) {
    names += KelIFC::Get(column, &IGeoColumn::get_Name) + "\n";
  }
  EXPECT_EQ(names, "Column A\nIFC#215\n");
}

TEST(ObjectModelGuide, ReadsAStoreyNumberThatMayBeMissing) {
  const KelIFC::OpenedModel model = KelIFC::OpenModel(Shipped("house.ifc"));
  int storey = -1;
  const auto columns = KelIFC::Get(model.structure, &IGeoStructure::get_Columns);
  const auto column = KelIFC::ItemAt(columns, 1);
  const auto number = KelIFC::TryGet(column, &IGeoColumn::get_StoreyNumber);
  if (number && *number != KelIFC::kNoStoreyNumber) storey = *number;
  EXPECT_EQ(storey, 0);
}

/// Opens a shipped model with the interfaces alone.
class Guide : public testing::Test {
 protected:
  void Open(const std::string& model) {
    const std::string path = Shipped(model);
    KelIFC::ComPtr<IIFCServer> server;
    CoCreateInstance(CLSID_CoIFCServer, nullptr, CLSCTX_ALL, KelIFC::IidOf<IIFCServer>(),
                     reinterpret_cast<void**>(server.Put()));
    const HRESULT status = server->Load(KelIFC::Bstr(KelIFC::WidePath(path)).Get());
    KelIFC::ComPtr<IGeoStructure> structure;
    if (SUCCEEDED(status)) server->get_Structure(structure.Put());
    loaded = status;
    this->server = server;
    this->structure = structure;
  }

  HRESULT loaded = E_FAIL;
  KelIFC::ComPtr<IIFCServer> server;
  KelIFC::ComPtr<IGeoStructure> structure;
};

TEST_F(Guide, LoadsAModel) {
  Open("house.ifc");
  EXPECT_EQ(loaded, S_OK);
  EXPECT_TRUE(structure);
}

TEST_F(Guide, ReportsWhyNothingWasLoaded) {
  Open("missing.ifc");
  EXPECT_EQ(loaded, STG_E_FILENOTFOUND);
  KelIFC::ComPtr<IErrorInfo> error;
  KelIFC::Bstr message;
  if (GetErrorInfo(0, error.Put()) == S_OK) error->GetDescription(message.Put());
  EXPECT_THAT(std::wstring(message.Text()), testing::EndsWith(L"cannot be opened."));
}

TEST_F(Guide, ComparesVersions) {
  Open("house.ifc");
  VARIANT_BOOL isNewEnough = VARIANT_FALSE;
  const auto version = structure.As<IGeoVersion2>();
  version->IsCompatible(KelIFC::Bstr(L"25.0.3857").Get(), &isNewEnough);
  EXPECT_EQ(isNewEnough, VARIANT_TRUE);
}

TEST_F(Guide, WalksACollection) {
  Open("house.ifc");
  std::string names;
  KelIFC::ComPtr<IGeoColumns> columns;
  structure->get_Columns(columns.Put());
  KelIFC::ComPtr<IGeoColumn> column;
  for (LONG i = 1; SUCCEEDED(columns->Item(i, column.Put())); ++i) {
    KelIFC::Bstr name;
    column->get_Name(name.Put());
    names += KelIFC::Utf8Text(name.Text()) + "\n";
  }
  EXPECT_EQ(names, "Column A\nIFC#215\n");
}

TEST_F(Guide, FindsASectionByItsName) {
  Open("house.ifc");
  KelIFC::ComPtr<IGeoBeams> beams;
  structure->get_Beams(beams.Put());
  const KelIFC::Bstr name(L"IFC_R_24x30");
  VARIANT index = {};
  index.vt = VT_BSTR;
  index.bstrVal = name.Get();
  KelIFC::ComPtr<IGeoSections> sections;
  structure->get_Sections(sections.Put());
  KelIFC::ComPtr<IGeoSection> section;
  const HRESULT found = sections->Item(index, section.Put());
  ASSERT_EQ(found, S_OK);
  double width = 0.0;
  if (const auto rectangle = section.As<IGeoSectionR>()) rectangle->get_Width(&width);
  EXPECT_DOUBLE_EQ(width, 0.24);
}

TEST_F(Guide, ReadsThePointsOfAnElement) {
  Open("house.ifc");
  KelIFC::ComPtr<IGeoColumns> columns;
  structure->get_Columns(columns.Put());
  KelIFC::ComPtr<IGeoColumn> column;
  ASSERT_EQ(columns->Item(1, column.Put()), S_OK);
  const auto polyline = column.As<IGeoPolyline>();
  KelIFC::ComPtr<IGeoPoints> points;
  polyline->get_Points(points.Put());
  KelIFC::ComPtr<IGeoPoint> point;
  points->Item(1, point.Put());
  double x = 0.0, y = 0.0, z = 0.0;
  point->GetXYZ(&x, &y, &z);
  EXPECT_DOUBLE_EQ(x, 2.7);
  EXPECT_DOUBLE_EQ(y, 3.12);
  EXPECT_DOUBLE_EQ(z, 0.0);
}

TEST_F(Guide, ReadsTheFacesOfABoundary) {
  Open("hall.ifc");
  KelIFC::ComPtr<IGeoBeams> beams;
  structure->get_Beams(beams.Put());
  KelIFC::ComPtr<IGeoBeam> beam;
  ASSERT_EQ(beams->Item(3, beam.Put()), S_OK);
  std::vector<LONG> corners;
  KelIFC::ComPtr<IGeoBRep> boundary;
  beam->get_BRep(boundary.Put());
  KelIFC::ComPtr<IGeoFaces> faces;
  boundary->get_Faces(faces.Put());
  KelIFC::ComPtr<IGeoFace> face;
  for (LONG i = 1; SUCCEEDED(faces->Item(i, face.Put())); ++i) {
    KelIFC::ComPtr<IGeoNumbers> numbers;
    face->get_Numbers(numbers.Put());
    LONG number = 0;
    for (LONG k = 1; SUCCEEDED(numbers->Item(k, &number)); ++k) corners.push_back(number);
  }
  ASSERT_EQ(corners.size(), 44U);
  corners.resize(4);
  EXPECT_EQ(corners, (std::vector<LONG>{1, 2, 3, 4}));
}

TEST_F(Guide, ReadsTheElementsOfTheBuildingModel) {
  Open("house.ifc");
  std::string names;
  const auto reading = server.As<IIFCServerReading>();
  reading->put_Reading(1);
  for (const auto& element : KelIFC::Items(reading, &IIFCServerReading::get_Elements)) {
    names += KelIFC::Get(element, &IGeoElement::get_Name) + "\n";
  }
  EXPECT_THAT(names, testing::HasSubstr("Column A\n"));
}

TEST_F(Guide, KeepsElementsAfterTheServerObjectIsReleased) {
  Open("house.ifc");
  KelIFC::ComPtr<IGeoColumns> columns;
  structure->get_Columns(columns.Put());
  KelIFC::ComPtr<IGeoColumn> column;
  ASSERT_EQ(columns->Item(1, column.Put()), S_OK);
  columns.Reset();
  server.Reset();
  SHORT number = 0;
  KelIFC::Bstr name;
  KelIFC::Bstr section;
  EXPECT_EQ(column->get_StoreyNumber(&number), E_POINTER);
  EXPECT_EQ(column->get_SectionName(section.Put()), E_POINTER);
  EXPECT_EQ(column->get_Name(name.Put()), S_OK);
  EXPECT_EQ(name.Text(), L"Column A");
  KelIFC::ComPtr<IGeoBeams> beams;
  EXPECT_EQ(structure->get_Beams(beams.Put()), E_POINTER);
}

}  // namespace
