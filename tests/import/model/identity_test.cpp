#include <gtest/gtest.h>

#include <string>

#include "kelifc/geo/ifc_server_object.h"

#include "tests/import/structure_reader.h"

namespace KelIFC {
namespace {

/// A model with one column and one storey of the same name, as a file spells it.
std::string ModelWithName(const std::string& name) {
  ModelBuilder model;
  const auto placement = model.Local(model.Placement({0, 0, 0}));
  model.Column(placement, model.Body({model.Extrusion(model.Rectangle(0.3, 0.5), 3)}), name);
  model.Add("IFCBUILDINGSTOREY('3VvSUbOOfKXvqnv$9xajtg',$,'" + name + "',$,$," + placement +
            ",$,$,.ELEMENT.,0.)");
  return "ISO-10303-21;HEADER;FILE_SCHEMA(('IFC2X3'));ENDSEC;DATA;\n" + model.Data();
}

class Names : public HostTest {
 protected:
  /// Loads a model in a dialect and returns the column and the storey.
  void Load(STEP_DIALECT dialect, const std::string& name) {
    const std::string text = ModelWithName(name);
    LoadOptions options;
    options.dialect = dialect;
    server = CreateOwn<CoIFCServer>();
    IfcServer& model = static_cast<CoIFCServer&>(*server).Model();
    ASSERT_EQ(model.LoadIfcMemory(text.data(), text.size(), options), 0);
    const auto structure = GetObject(*server, &IIFCServer::get_Structure);
    const auto columns = GetObject(*structure, &IGeoStructure::get_Columns);
    const auto storeys = GetObject(*structure, &IGeoStructure::get_Storeys);
    ComPtr<IGeoColumn> item;
    ASSERT_EQ(columns->Item(1, item.Put()), S_OK);
    column = item.As<IGeoObject>();
    ASSERT_EQ(storeys->Item(1, storey.Put()), S_OK);
  }

  void TearDown() override {
    storey.Reset();
    column.Reset();
    server.Reset();
    HostTest::TearDown();
  }

  ComPtr<IIFCServer> server;
  ComPtr<IGeoObject> column;
  ComPtr<IGeoStorey> storey;
};

TEST_F(Names, AreDecodedTextInTheDialectOfIso) {
  const std::wstring expected = L"T\u00FCr \u20AC \U0001F3E0 it's";
  Load(STEP_DIALECT_ISO, "T\\X2\\00FC\\X0\\r \\X2\\20AC\\X0\\ \\X4\\0001F3E0\\X0\\ it''s");
  EXPECT_EQ(GetText(*column, &IGeoObject::get_Name), expected);
  EXPECT_EQ(GetText(*storey, &IGeoStorey::get_Name), expected);
}

TEST_F(Names, HaveACharacterForEachByteInTheClassicDialect) {
  Load(STEP_DIALECT_CLASSIC, "T\xC3\xBCr \\X\\FC");
  EXPECT_EQ(GetText(*column, &IGeoObject::get_Name), L"T\u00C3\u00BCr \u00FC");
  EXPECT_EQ(GetText(*storey, &IGeoStorey::get_Name), L"T\u00C3\u00BCr \u00FC");
}

TEST_F(Names, TakeAnyCharacterInTheDialectOfIso) {
  const std::wstring name = L"\u20AC \U0001F3E0";
  Load(STEP_DIALECT_ISO, "A");
  EXPECT_EQ(column->put_Name(Bstr(name).Get()), S_OK);
  EXPECT_EQ(storey->put_Name(Bstr(name).Get()), S_OK);
  EXPECT_EQ(GetText(*column, &IGeoObject::get_Name), name);
  EXPECT_EQ(GetText(*storey, &IGeoStorey::get_Name), name);
  EXPECT_EQ(column->put_Name(nullptr), S_OK);
  EXPECT_EQ(GetText(*column, &IGeoObject::get_Name), L"");
}

TEST_F(Names, KeepTheirDialectWithoutTheModel) {
  Load(STEP_DIALECT_ISO, "T\\X\\FCr");
  static_cast<CoIFCServer&>(*server).Model().Reset();
  EXPECT_EQ(GetText(*column, &IGeoObject::get_Name), L"T\u00FCr");
  server.Reset();
  EXPECT_EQ(GetText(*storey, &IGeoStorey::get_Name), L"T\u00FCr");
}

}  // namespace
}  // namespace KelIFC
