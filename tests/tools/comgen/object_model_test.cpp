#include <gtest/gtest.h>

#include <string>

#include "tests/paths.h"
#include "tests/read_file.h"
#include "tests/tools/comgen/describe.h"

// A second description of the object model with which hosts are compiled, in another form. A change
// of the first one that hosts would notice fails here.

namespace comgen {
namespace {

using KelIFC::ReadFile;

/// The operations of IGeoObject, with which every element interface begins.
constexpr char kElement[] =
    "get_SectionName (p) (p) (p) get_ObjectCode get_StoreyNumber (s) (p) (p) (p) (p) (s) get_Name "
    "put_Name (p)";

/// An interface: the names of its operations. A reserved operation is written as the kinds of its
/// arguments (p is a pointer, i is 32 bits, s is 16 bits, d is a double). "@" means the operations
/// of IGeoObject.
struct InterfaceRow {
  const char* name;
  const char* identifier;
  const char* operations;
};

constexpr InterfaceRow kInterfaces[] = {
    {"IIFCServer", "1965FB96-F604-4577-87E4-65B5835DDF01", "Load (p) get_Structure"},
    {"IGeoStructure", "E1D166D1-5039-4BC5-8A68-8091A70D6110",
     "get_Storeys () get_Beams get_Columns get_Walls get_Plates (p) (p) (p) get_Foots get_Sections "
     "get_Materials get_Objects (p) (p) (p) (p) (p) (p) () () () (p) (p) (p) (p) (p,p) (p) (d) (p) "
     "(d) () (p,p) (i) (i,p) (p) () () (p,p,p)"},
    {"IGeoVersion", "8394BAD8-C071-4E23-8F42-BAA4B9B57F61", "get_Version"},
    {"IGeoVersion2", "8DD4D97B-9A5A-479D-A1B5-B1132C1591F3", "IsCompatible"},
    {"IGeoStorey", "DC9BFB96-9326-4D08-92BD-BB84531E7E0A",
     "get_Height put_Height get_Number (p) (p) (p) (p) (p) (p) (p) (p) get_Name put_Name (p) (s) "
     "(p) (p) (p) get_Level (p) (p) (p) (p) (s)"},
    {"IGeoStoreys", "866D0167-B0BB-43E2-94F8-CC3659BFCD00",
     "_NewEnum Item Count (s,p) (p,p) (p,p) (p,p) (p,p) (p,p)"},
    {"IGeoObject", "90E91421-E731-4871-A84F-996D83484284",
     "get_SectionName (p) (p) (p) get_ObjectCode get_StoreyNumber (s) (p) (p) (p) (p) (s) get_Name "
     "put_Name (p)"},
    {"IGeoObjects", "25A24D52-7174-47FA-BF1D-6DC95D746C9A",
     "_NewEnum Item Count (i) (p) (p) (p) (i) (s) () (i) (s) () (p) (p,p) (i,p)"},
    {"IGeoPolyline", "E0CCDB8A-E2BC-438F-9DCB-60991D07534C", "get_Points get_Closed (s)"},
    {"IGeoPoint", "292C00A8-2B4B-4AD3-95F6-47480BDF3119",
     "get_X put_X get_Y put_Y get_Z put_Z SetXYZ GetXYZ"},
    {"IGeoPoints", "77D14BF5-88B0-46FF-939E-8DB93435029F", "_NewEnum Item Count (i) (d,d,d)"},
    {"IGeoColumn", "7DD61FD9-7654-481C-B177-DE62F8A3C95C",
     "@(p) (d) get_GUID put_GUID (p) (i) (p) (p) (p) (p) (i) (p) (s) (p)"},
    {"IGeoColumns", "FA6E0BD5-3E6B-48C6-9B8A-3664E29AB98B", "_NewEnum Item Count (p,p)"},
    {"IGeoBeam", "ED9148DF-D125-4499-8B79-7D0E81CB03D5",
     "@(p) (d) (p) (s) (p) (p) (p) (p) get_GUID put_GUID (p) (i) (p) (p) (p) (p) (p) (s) get_BRep "
     "(p) (p) (i) (p) (i) (p) (i)"},
    {"IGeoBeams", "2A711731-3539-4FD0-9912-7E25C40A5A82", "_NewEnum Item Count (p,p)"},
    {"IGeoFoot", "9F5A0152-9FFC-4EED-ACC0-64E32B2612EC",
     "@(p) (d) (p) (i) (p) (p) (p) (p) get_GUID put_GUID (p) (p) (i) (p) (i) (p)"},
    {"IGeoFoots", "D3A95E1F-80D0-4F70-9EAA-7825A909839F", "_NewEnum Item Count (p,p)"},
    {"IGeoBRep", "50360035-CA7A-4F12-A112-365018BA9849",
     "get_Faces get_Points (p) (p) () (p,p,p) (p,p,p)"},
    {"IGeoFace", "247C7BAB-3130-4CF8-B2F2-4CFE6EC0FBFC", "get_Numbers (p)"},
    {"IGeoFaces", "FFC9FB19-293A-4479-B3C1-CB4B3C37FC52", "_NewEnum Item Count (p)"},
    {"IGeoPlate", "3985DF35-9330-4B73-AE3B-73331DB14F35",
     "@get_Holes get_GUID put_GUID (p) (i) (p) (p) (p) (p) (i) (p)"},
    {"IGeoPlates", "66CB093B-F820-4CC5-B864-53846609A14F", "_NewEnum Item Count (p,p)"},
    {"IGeoWall", "6045F363-CA6D-4ADD-8A74-8AE99F838942",
     "@get_Windows get_Doors get_GUID put_GUID (p) (i) (p) (p) get_IsOpen (s) (p) () (p) (i) (p)"},
    {"IGeoWalls", "AC75E744-865E-4A5D-8C9F-B3D972C31207", "_NewEnum Item Count (p,p)"},
    {"IGeoWindow", "E147C3C9-1640-4A09-9355-BDEBDE037C9F", "@get_GUID put_GUID (p) (p) (i)"},
    {"IGeoWindows", "B64AAB5B-76B2-4AB9-B89E-B1D65108D57F", "_NewEnum Item Count (p,p)"},
    {"IGeoDoor", "F3D9D653-38C4-41E3-ABB0-DFBEAB84E392", "@get_GUID put_GUID (p) (p) (i)"},
    {"IGeoDoors", "96DB6A8F-C2D2-44E1-89F0-2D76AC156B2D", "_NewEnum Item Count (p,p)"},
    {"IGeoHole", "8BA91E99-3DCE-48DB-86AE-6E4A49DC2EDD", "@get_GUID put_GUID (p) (p) (i)"},
    {"IGeoHoles", "3FC490F3-79F9-4EFC-804D-65E58297071E", "_NewEnum Item Count (p,p)"},
    {"IGeoSection", "C98BB949-C193-455A-97BB-AAD9D77D34FA", "get_Name put_Name get_Kind"},
    {"IGeoSections", "105EEF1A-B843-4EC8-834F-EA2427EE2F42",
     "_NewEnum Item Count () () (i,p,p) (p,p,p) (p) ItemByIndex"},
    {"IGeoSectionThick", "64120786-4CB3-4BD4-8C9C-1EEA66DA527A", "get_Thickness put_Thickness"},
    {"IGeoSectionProfile", "764A4D90-096D-414C-9254-0A3C88F590B8", "(p) (p) (p)"},
    {"IGeoSectionR", "CAC0A73F-CEB7-4C52-94C1-7313105AF559",
     "get_Width put_Width get_Height put_Height"},
    {"IGeoSectionC", "26786972-D728-4E42-8554-B66A066B9294", "get_Diameter put_Diameter"},
    {"IGeoSectionT", "A57F915F-2A26-46D9-BF93-27289A7D23EE",
     "get_Height put_Height get_FlangeThickness put_FlangeThickness get_WebWidth put_WebWidth "
     "get_FlangeWidth put_FlangeWidth"},
    {"IGeoMaterials", "E42B1860-E905-48F7-8E40-FD56761220D2",
     "_NewEnum (p,p) Count () () (i,p,p) ItemByIndex"},
    {"IGeoNumbers", "C1EE530F-19BF-418E-9B98-2C64A4A3CA0E", "_NewEnum Item Count (i)"},
    {"IIFCLoadProgress", "1D8B2FFB-2479-4A20-AE3C-73EF3EEBFAD1", "Progress"},
    {"IIFCServerOptions", "7BF595CC-80FC-4B2A-BB0B-6A80D0894175",
     "get_Dialect put_Dialect get_MaxBytes put_MaxBytes get_MaxInstances put_MaxInstances "
     "get_MaxStatementBytes put_MaxStatementBytes get_MaxMemoryBytes put_MaxMemoryBytes "
     "SetProgress "
     "CancelLoad get_LoadResult CheckModel get_ReportText get_ReportJson ReportCount SourceLine"},
    {"IIFCServerReading", "5C70FAFB-625F-418D-93E6-F063D029A0D9",
     "get_Reading put_Reading get_Elements get_Losses"},
    {"IGeoElement", "6F37ACCB-B5D3-4B4B-8BFC-94D534A91B86",
     "get_Id get_ClassName get_GUID get_GlobalId get_Name get_Tag get_PredefinedType "
     "get_StoreyNumber get_StoreyNumberByHeight get_StoreyName get_PartOf get_Material get_Kind "
     "get_Source get_Deviation get_VolumeRatio get_IsApproximate get_Cutouts get_AxisForm get_Axis "
     "get_AxisY get_OffsetY get_OffsetZ get_Profile get_EndProfile get_Outline get_Holes "
     "get_Normal "
     "get_Thickness get_Height get_BoxMin get_BoxMax get_Volume get_IsClosed get_Boundary"},
    {"IGeoProfile", "2E97686F-9099-41A5-840F-902FB8D5A427",
     "get_Name get_Shape get_Designation get_NameContradicts get_Area get_Iy get_Iz get_Iyz "
     "Parameter get_Outline get_Holes"},
    {"IGeoLoss", "49310284-FAA2-47DC-A923-7026B6C2D525",
     "get_Id get_ClassName get_GUID get_GlobalId get_Name get_Reason get_Line get_At"},
    {"IGeoElements", "87AF2525-5BDF-429C-A37E-5E3C130628CD", "_NewEnum Item Count"},
    {"IGeoLosses", "C3812875-4060-49A2-9BC7-2E25F1C43CEB", "_NewEnum Item Count"},
    {"IGeoPointLists", "0BA49885-BFBB-4B88-A6F9-9A55E928BB36", "_NewEnum Item Count"},
};

struct ClassRow {
  const char* name;
  const char* progId;
  const char* identifier;
  const char* interfaces;
};

constexpr ClassRow kClasses[] = {
    {"CoIFCServer", "KelIFC.IFCServer.1", "39A9D627-0D20-4A20-9A95-8938494CC566",
     "IIFCServer IIFCServerOptions IIFCServerReading"},
    {"CoGeoStructure", "KelIFC.GeoStructure.1", "11988719-A5F6-4412-AEE4-0BE561F7A966",
     "IGeoStructure IGeoVersion IGeoVersion2"},
    {"CoGeoStorey", "KelIFC.GeoStorey.1", "C3FD50CF-74B2-4970-BB55-E5B08CA045B7", "IGeoStorey"},
    {"CoGeoStoreys", "KelIFC.GeoStoreys.1", "6DE47C6A-0B91-4674-936E-C46EACDACB28", "IGeoStoreys"},
    {"CoGeoObjects", "KelIFC.GeoObjects.1", "55519A64-008F-44B1-BF1F-CEA40FD43FE7", "IGeoObjects"},
    {"CoGeoMaterials", "KelIFC.GeoMaterials.1", "68AA5FE9-7490-4741-A46D-B38C1C81E74A",
     "IGeoMaterials"},
    {"CoGeoSections", "KelIFC.GeoSections.1", "87C620F1-26E3-4241-BDCA-B7DBACE1DDD1",
     "IGeoSections"},
    {"CoGeoColumn", "KelIFC.GeoColumn.1", "B1C8CC82-2ED1-4269-A891-3BDECECB7AC2",
     "IGeoColumn IGeoObject IGeoPolyline"},
    {"CoGeoColumns", "KelIFC.GeoColumns.1", "74FC5B25-875D-46EA-9E0A-A050778227F6", "IGeoColumns"},
    {"CoGeoBeam", "KelIFC.GeoBeam.1", "CA59419E-9C9A-4D8F-8C2B-9F557D5D355C",
     "IGeoBeam IGeoObject IGeoPolyline"},
    {"CoGeoBeams", "KelIFC.GeoBeams.1", "BD2369D8-3B9D-4B44-A6F2-B9207DE21D85", "IGeoBeams"},
    {"CoGeoFoot", "KelIFC.GeoFoot.1", "627BA8D0-1038-4D7B-975F-3EBF7872DD06",
     "IGeoFoot IGeoObject IGeoPoint"},
    {"CoGeoFoots", "KelIFC.GeoFoots.1", "3250C01C-4349-4C69-9970-E295844B81D4", "IGeoFoots"},
    {"CoGeoPoint", "KelIFC.GeoPoint.1", "A861D370-33E7-4C7A-B9E7-B5E0F70FA5ED", "IGeoPoint"},
    {"CoGeoPoints", "KelIFC.GeoPoints.1", "10C9D81D-090F-48D4-BDDA-4D3A07CFA58F", "IGeoPoints"},
    {"CoGeoPlate", "KelIFC.GeoPlate.1", "279AB858-AF21-4528-A053-8AE63C237E93",
     "IGeoPlate IGeoObject IGeoPolyline"},
    {"CoGeoPlates", "KelIFC.GeoPlates.1", "D69A8332-F956-42F6-875B-8E014B74AC1E", "IGeoPlates"},
    {"CoGeoWall", "KelIFC.GeoWall.1", "CECB02BE-D2B5-4BB5-9515-06CFBB6A557E",
     "IGeoWall IGeoObject IGeoPolyline"},
    {"CoGeoWalls", "KelIFC.GeoWalls.1", "9E64E917-D382-4647-8C7A-A47E9CCFF802", "IGeoWalls"},
    {"CoGeoWindow", "KelIFC.GeoWindow.1", "9BF6667A-374A-4AE0-AAFA-61F63D036D2A",
     "IGeoWindow IGeoObject IGeoPolyline IGeoPoint"},
    {"CoGeoWindows", "KelIFC.GeoWindows.1", "81A828BB-6528-4253-9CF3-AF094F067394", "IGeoWindows"},
    {"CoGeoDoor", "KelIFC.GeoDoor.1", "2679CF46-A633-403C-8C83-2251810B3858",
     "IGeoDoor IGeoObject IGeoPolyline IGeoPoint"},
    {"CoGeoDoors", "KelIFC.GeoDoors.1", "37014A65-CB70-476D-8B13-0440C5D6EAF8", "IGeoDoors"},
    {"CoGeoHole", "KelIFC.GeoHole.1", "563AD630-69FA-4DE8-8C53-07ECA098E765",
     "IGeoHole IGeoObject IGeoPolyline"},
    {"CoGeoHoles", "KelIFC.GeoHoles.1", "25AEACE0-8BAF-4576-ACF5-A68A01945741", "IGeoHoles"},
    {"CoGeoSectionThick", "KelIFC.GeoSectionThick.1", "AC832C39-649D-42DC-9F8A-B48682BF8F07",
     "IGeoSectionThick IGeoSection"},
    {"CoGeoSectionProfile", "KelIFC.GeoSectionProfile.1", "4C4BCACF-9C19-412B-9AB9-DBDDFF275FA3",
     "IGeoSectionProfile IGeoSection"},
    {"CoGeoSectionR", "KelIFC.GeoSectionR.1", "ADCB3CE7-98F2-4FB0-8A01-8CF60028CE12",
     "IGeoSectionR IGeoSection"},
    {"CoGeoSectionC", "KelIFC.GeoSectionC.1", "6B7432CC-8117-4B0B-AEAA-656DEB43D791",
     "IGeoSectionC IGeoSection"},
    {"CoGeoSectionT", "KelIFC.GeoSectionT.1", "58431AA4-1A34-4E7D-80F4-D50BA2937B26",
     "IGeoSectionT IGeoSection"},
    {"CoGeoBRep", "KelIFC.GeoBRep.1", "D8C5F1E1-A281-4F79-9020-F87FC9A30C62", "IGeoBRep"},
    {"CoGeoFace", "KelIFC.GeoFace.1", "1F268374-5BE9-4C9D-B174-CA69B1C5276B", "IGeoFace"},
    {"CoGeoFaces", "KelIFC.GeoFaces.1", "C501E1B1-2597-4E18-B6C1-E4BC271E47E0", "IGeoFaces"},
    {"CoGeoNumbers", "KelIFC.GeoNumbers.1", "BCC68B65-E74A-4F28-85EF-21182FBDB41B", "IGeoNumbers"},
    {"CoGeoElement", "KelIFC.GeoElement.1", "9DE44215-0C24-41F2-89D7-54C9EB8628BA", "IGeoElement"},
    {"CoGeoElements", "KelIFC.GeoElements.1", "87477131-F86A-495F-9833-6D8368582CA4",
     "IGeoElements"},
    {"CoGeoProfile", "KelIFC.GeoProfile.1", "B5E38A6E-6FD3-4023-BA46-235FBA4A58CD", "IGeoProfile"},
    {"CoGeoLoss", "KelIFC.GeoLoss.1", "7B7BC78A-162D-4E42-838A-E28B1C8C40E2", "IGeoLoss"},
    {"CoGeoLosses", "KelIFC.GeoLosses.1", "869EF049-9876-4632-940A-B916822FFA9B", "IGeoLosses"},
    {"CoGeoPointLists", "KelIFC.GeoPointLists.1", "035FD176-1452-45B2-9D89-471B7783E0E5",
     "IGeoPointLists"},
};

Description ReadDescription() {
  const std::string path = std::string(KelIFC::kSourceDir) + "/kelifc/geo/geo.objects";
  Description description = ParseDescription(path, ReadFile(path));
  Resolve(description);
  return description;
}

char LetterOf(Kind kind) {
  switch (kind) {
    case Kind::kPointer:
      return 'p';
    case Kind::kLong:
      return 'i';
    case Kind::kShort:
      return 's';
    case Kind::kDouble:
      return 'd';
    default:
      return '?';
  }
}

std::string FormOf(const Operation& operation) {
  if (operation.role != Operation::Role::kReserved) return operation.name;
  std::string form;
  for (const Argument& argument : operation.arguments) {
    form += form.empty() ? "" : ",";
    form += LetterOf(argument.type.kind);
  }
  return "(" + form + ")";
}

std::string FormOf(const Description& description, const Interface& interface) {
  std::string form;
  for (const Operation* operation : description.AllOperations(interface)) {
    form += (form.empty() ? "" : " ") + FormOf(*operation);
  }
  return form;
}

TEST(ObjectModel, HasItsInterfacesWithTheirOperationsInOrder) {
  const Description description = ReadDescription();
  for (const InterfaceRow& row : kInterfaces) {
    const Interface* interface = description.Find(row.name);
    ASSERT_NE(interface, nullptr) << row.name;
    EXPECT_EQ(interface->identifier, row.identifier) << row.name;
    std::string operations = row.operations;
    if (operations.front() == '@') operations = std::string(kElement) + " " + (row.operations + 1);
    EXPECT_EQ(FormOf(description, *interface), operations) << row.name;
  }
}

TEST(ObjectModel, HasNoOtherInterfaceExceptIGeoMaterial) {
  const Description description = ReadDescription();
  EXPECT_EQ(description.interfaces.size(), std::size(kInterfaces) + 1);
  const Interface* material = description.Find("IGeoMaterial");
  ASSERT_NE(material, nullptr);
  EXPECT_TRUE(material->operations.empty());
}

TEST(ObjectModel, LetsElementsDeriveFromTheCommonInterface) {
  const Description description = ReadDescription();
  for (const InterfaceRow& row : kInterfaces) {
    const Interface* interface = description.Find(row.name);
    EXPECT_EQ(interface->base, row.operations[0] == '@' ? "IGeoObject" : "") << row.name;
  }
}

TEST(ObjectModel, HasItsClasses) {
  const Description description = ReadDescription();
  ASSERT_EQ(description.classes.size(), std::size(kClasses));
  for (std::size_t i = 0; i < std::size(kClasses); ++i) {
    const Class& type = description.classes[i];
    const ClassRow& row = kClasses[i];
    EXPECT_EQ(type.name, row.name);
    EXPECT_EQ(type.progId, row.progId);
    EXPECT_EQ(type.identifier, row.identifier);
    std::string interfaces;
    for (const std::string& name : type.interfaces) {
      interfaces += (interfaces.empty() ? "" : " ") + name;
    }
    EXPECT_EQ(interfaces, row.interfaces) << row.name;
  }
}

TEST(ObjectModel, HasALibrary) { EXPECT_EQ(ReadDescription().library.name, "KELIFCLib"); }

/// Returns the part of the guide below the heading that names an interface, or "".
std::string PartOfGuide(const std::string& guide, const std::string& interface) {
  for (std::size_t head = guide.find("\n### "); head != std::string::npos;) {
    const std::size_t text = guide.find('\n', head + 1);
    const std::size_t end = guide.find("\n#", text);
    if (guide.substr(head, text - head).find("`" + interface + "`") != std::string::npos) {
      return guide.substr(text, end - text);
    }
    head = guide.find("\n### ", text);
  }
  return "";
}

TEST(ObjectModel, IsDescribedCompletelyInTheGuide) {
  const Description description = ReadDescription();
  const std::string guide = ReadFile(std::string(KelIFC::kSourceDir) + "/docs/object-model.md");
  for (const Interface& interface : description.interfaces) {
    const std::string part = PartOfGuide(guide, interface.name);
    EXPECT_FALSE(part.empty()) << interface.name;
    for (const Operation& operation : interface.operations) {
      if (operation.role == Operation::Role::kReserved) continue;
      EXPECT_NE(part.find("`" + operation.name + "`"), std::string::npos)
          << interface.name << "::" << operation.name;
    }
  }
}

}  // namespace
}  // namespace comgen
