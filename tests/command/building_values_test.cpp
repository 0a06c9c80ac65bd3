#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "tests/command/process.h"

// What the commands of the building model print for a model whose numbers are known.

namespace command_test {
namespace {

using nlohmann::ordered_json;
using testing::HasSubstr;

/// A column of 0.25 by 0.5 m in the storey `Ground`, and a beam of 6 m in the storey `First`, 3 m
/// above. The profile of the beam has the sizes of an HEB200, but its name is HEB220.
struct Frame {
  std::string columnX = "2.";
  std::string columnY = "0.";
  std::string columnWidth = "0.25";
  std::string columnHeight = "3.";

  std::string Text() const {
    return "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('IFC2X3'));\nENDSEC;\nDATA;\n"
           "#1=IFCPROJECT('0aaaaaaaaaaaaaaaaaaaa1',$,'P',$,$,$,$,$,#2);\n"
           "#2=IFCUNITASSIGNMENT((#3));\n#3=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);\n"
           "#10=IFCCARTESIANPOINT((0.,0.,0.));\n#11=IFCAXIS2PLACEMENT3D(#10,$,$);\n"
           "#12=IFCCARTESIANPOINT((0.,0.));\n#13=IFCAXIS2PLACEMENT2D(#12,$);\n"
           "#14=IFCDIRECTION((0.,0.,1.));\n#15=IFCDIRECTION((1.,0.,0.));\n"
           "#16=IFCDIRECTION((0.,1.,0.));\n"
           "#20=IFCBUILDINGSTOREY('0aaaaaaaaaaaaaaaaaaaa2',$,'Ground',$,$,$,$,$,.ELEMENT.,0.);\n"
           "#21=IFCBUILDINGSTOREY('0aaaaaaaaaaaaaaaaaaaa3',$,'First',$,$,$,$,$,.ELEMENT.,3.);\n"
           "#22=IFCRELCONTAINEDINSPATIALSTRUCTURE('0aaaaaaaaaaaaaaaaaaaa4',$,$,$,(#30,#50),#20);\n"
           "#30=IFCCOLUMN('0aaaaaaaaaaaaaaaaaaaa5',$,'C1',$,$,#31,#33,'T1');\n"
           "#31=IFCLOCALPLACEMENT($,#32);\n#32=IFCAXIS2PLACEMENT3D(#37,$,$);\n"
           "#33=IFCPRODUCTDEFINITIONSHAPE($,$,(#34));\n"
           "#34=IFCSHAPEREPRESENTATION($,'Body','SweptSolid',(#35));\n"
           "#35=IFCEXTRUDEDAREASOLID(#36,#11,#14," +
           columnHeight + ");\n#36=IFCRECTANGLEPROFILEDEF(.AREA.,'C25/50',#13," + columnWidth +
           ",0.5);\n#37=IFCCARTESIANPOINT((" + columnX + "," + columnY +
           ",0.));\n"
           "#50=IFCBEAM('0aaaaaaaaaaaaaaaaaaaa6',$,'B1',$,$,$,#53,'T2');\n"
           "#53=IFCPRODUCTDEFINITIONSHAPE($,$,(#54));\n"
           "#54=IFCSHAPEREPRESENTATION($,'Body','SweptSolid',(#55));\n"
           "#55=IFCEXTRUDEDAREASOLID(#56,#57,#14,6.);\n"
           "#56=IFCISHAPEPROFILEDEF(.AREA.,'HEB220',#13,0.2,0.2,0.009,0.015,0.018);\n"
           "#57=IFCAXIS2PLACEMENT3D(#58,#15,#16);\n#58=IFCCARTESIANPOINT((0.,0.,3.1));\n"
           "#60=IFCMATERIAL('S235');\n"
           "#61=IFCRELASSOCIATESMATERIAL('0aaaaaaaaaaaaaaaaaaaa7',$,$,$,(#50),#60);\n"
           "ENDSEC;\nEND-ISO-10303-21;\n";
  }
};

class BuildingValues : public testing::Test {
 protected:
  std::string Write(const std::string& name, const Frame& frame) const {
    std::string path = folder.Path(name);
    WriteFile(path, frame.Text());
    return path;
  }

  ordered_json Json(const std::vector<std::string>& arguments) const {
    const Outcome run = Kelifc(arguments);
    EXPECT_EQ(run.status, 0) << run.err;
    return ordered_json::parse(run.out);
  }

  TemporaryFolder folder;
  const std::string path = Write("frame.ifc", Frame());
};

TEST_F(BuildingValues, ARowOfTheCsvHasTheSizesOfItsElement) {
  const Outcome run = Kelifc({"elements", "--csv", path});
  EXPECT_THAT(run.out, HasSubstr("\r\n30,IfcColumn,0aaaaaaaaaaaaaaaaaaaa5,C1,T1,,member,Ground,,"
                                 "C25/50,,3.0,0.125,,0.375,0.0,false,\r\n"));
  EXPECT_THAT(run.out, HasSubstr("\r\n50,IfcBeam,0aaaaaaaaaaaaaaaaaaaa6,B1,T2,,member,Ground,S235,"
                                 "HEB220,HEB200,6.0,"));
}

TEST_F(BuildingValues, ABeamHasItsAxisItsProfileAndItsStoreys) {
  const auto building = Json({"elements", "--json", path});
  const auto& beam = building["elements"][1];
  EXPECT_EQ(beam["axis"].dump(), "[[0.0,0.0,3.1],[6.0,0.0,3.1]]");
  EXPECT_EQ(beam["y"].dump(), "[0.0,1.0,0.0]");
  EXPECT_EQ(beam["storey"], 20);
  EXPECT_EQ(beam["storeyByHeight"], 21);
  const auto& profile = building["profiles"][beam["profile"].get<std::size_t>()];
  EXPECT_EQ(profile["shape"], "I");
  EXPECT_EQ(profile["designation"], "HEB200");
  // Two flanges, the web and four fillets: 78.1 cm2.
  const double area = 2 * 0.2 * 0.015 + 0.17 * 0.009 + (4 - 3.14159265358979) * 0.018 * 0.018;
  EXPECT_NEAR(profile["area"].get<double>(), area, 1e-7);
  EXPECT_NEAR(profile["iy"].get<double>(), 5696e-8, 1e-8);  // cm4 of the published table
  EXPECT_NEAR(profile["iz"].get<double>(), 2003e-8, 1e-8);
}

TEST_F(BuildingValues, TheAuditNamesWhatContradictsItself) {
  const auto audit = Json({"audit", "--json", path});
  EXPECT_EQ(audit["profiles"].dump(),
            R"([{"name":"C25/50","shape":"rectangle","contradicts":false},)"
            R"({"name":"HEB220","shape":"I","contradicts":true}])");
  EXPECT_EQ(audit["storeys"].dump(),
            R"([{"id":20,"name":"Ground","elevation":0.0,"stated":2,"byHeight":1,)"
            R"("differing":[50]},)"
            R"({"id":21,"name":"First","elevation":3.0,"stated":0,"byHeight":1,"differing":[]}])");
}

TEST_F(BuildingValues, TheDifferenceStatesHowFarAnElementMoved) {
  Frame moved;
  moved.columnX = "2.03";
  moved.columnY = "0.04";
  const auto difference = Json({"diff", "--json", path, Write("moved.ifc", moved)});
  ASSERT_EQ(difference["changed"].size(), 1u);
  const auto& change = difference["changed"][0];
  EXPECT_EQ(change["old"], 30);
  EXPECT_EQ(change["new"], 30);
  EXPECT_EQ(change["matchedBy"], "guid");
  EXPECT_NEAR(change["moved"].get<double>(), 0.05, 1e-12);
  EXPECT_TRUE(change["profile"].is_null());
  EXPECT_TRUE(change["length"].is_null());
  EXPECT_EQ(difference["same"], 1);
}

TEST_F(BuildingValues, TheDifferenceStatesTheOldAndTheNewLengthAndProfile) {
  Frame changed;
  changed.columnHeight = "3.5";
  changed.columnWidth = "0.3";
  const auto difference = Json({"diff", "--json", path, Write("changed.ifc", changed)});
  ASSERT_EQ(difference["changed"].size(), 1u);
  const auto& change = difference["changed"][0];
  EXPECT_EQ(change["length"].dump(), "[3.0,3.5]");
  EXPECT_EQ(change["profile"].size(), 2u);
  EXPECT_NE(change["profile"][0], change["profile"][1]);
  EXPECT_EQ(change["moved"], 0.0);
}

TEST_F(BuildingValues, AModelIsReadInTheSameWayEachTime) {
  std::string text = Frame().Text();
  const std::size_t guid = text.find("'0aaaaaaaaaaaaaaaaaaaa5'");
  text.replace(guid, 24, "''");
  WriteFile(path, text);
  const Outcome first = Kelifc({"elements", "--json", path});
  EXPECT_THAT(first.out, HasSubstr(R"("guid":null,"name":"C1")"));
  EXPECT_EQ(Kelifc({"elements", "--json", path}).out, first.out);
}

}  // namespace
}  // namespace command_test
