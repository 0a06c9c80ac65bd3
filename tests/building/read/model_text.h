#ifndef TESTS_BUILDING_READ_MODEL_TEXT_H_
#define TESTS_BUILDING_READ_MODEL_TEXT_H_

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <variant>

#include "kelifc/building/read/read_model.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC::building {

/// Millimetres and degrees, which show whether a length or an angle is converted.
inline const char kMillimetresAndDegrees[] =
    "#2=IFCUNITASSIGNMENT((#3,#4));#3=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);"
    "#4=IFCCONVERSIONBASEDUNIT($,.PLANEANGLEUNIT.,'degree',#5);"
    "#5=IFCMEASUREWITHUNIT(IFCPLANEANGLEMEASURE(0.0174532925199433),#6);"
    "#6=IFCSIUNIT(*,.PLANEANGLEUNIT.,$,.RADIAN.);";

/// Instances that many tests use: a project, an origin (#10), its axes in space (#11) and in the
/// plane (#12), the z axis (#13) and a rectangle of 300 by 200 (#14).
inline std::string CommonText() {
  return std::string("#1=IFCPROJECT('p',$,'P',$,$,$,$,$,#2);") + kMillimetresAndDegrees +
         "#10=IFCCARTESIANPOINT((0.,0.,0.));#11=IFCAXIS2PLACEMENT3D(#10,$,$);"
         "#9=IFCCARTESIANPOINT((0.,0.));#12=IFCAXIS2PLACEMENT2D(#9,$);"
         "#13=IFCDIRECTION((0.,0.,1.));"
         "#14=IFCRECTANGLEPROFILEDEF(.AREA.,'R',#12,300.,200.);";
}

/// A column (#20) whose body has the item #30.
inline std::string ColumnText() {
  return "#20=IFCCOLUMN('c',$,'C1',$,$,$,#21,'T');#21=IFCPRODUCTDEFINITIONSHAPE($,$,(#22));"
         "#22=IFCSHAPEREPRESENTATION($,'Body','SweptSolid',(#30));";
}

/// A model of this text and what it says.
struct ReadText {
  std::unique_ptr<IfcServer> server = std::make_unique<IfcServer>();
  ModelFacts facts;

  const ProductFacts& Only() const {
    static const ProductFacts kNone;
    EXPECT_EQ(facts.products.size(), 1U);
    return facts.products.empty() ? kNone : facts.products.front();
  }

  const ProductFacts* Find(std::size_t id) const {
    for (const ProductFacts& product : facts.products) {
      if (product.id == id) return &product;
    }
    return nullptr;
  }
};

inline ReadText ReadData(const std::string& data, const std::string& schema = "IFC2X3",
                         const ReadingOptions& options = {}) {
  const std::string text = "ISO-10303-21;HEADER;FILE_SCHEMA(('" + schema + "'));ENDSEC;DATA;\n" +
                           data + "ENDSEC;END-ISO-10303-21;";
  ReadText read;
  LoadOptions load;
  load.dialect = STEP_DIALECT_ISO;
  EXPECT_EQ(read.server->LoadIfcMemory(text.data(), text.size(), load), 0);
  read.facts = ReadModel(*read.server, options);
  return read;
}

/// The only item of a column whose item #30 and what it refers to are `items`.
inline SolidPointer ReadItem(const std::string& items, const std::string& schema = "IFC2X3",
                             const ReadingOptions& options = {}) {
  const ReadText read = ReadData(CommonText() + ColumnText() + items, schema, options);
  const ProductFacts& product = read.Only();
  EXPECT_FALSE(product.fault);
  EXPECT_EQ(product.items.size(), 1U);
  return product.items.empty() ? std::make_shared<const Solid>() : product.items.front();
}

/// The form of that item; a failure and an empty form if it is another one.
template <class Form>
Form ReadForm(const std::string& items, const std::string& schema = "IFC2X3") {
  const SolidPointer solid = ReadItem(items, schema);
  const Form* form = std::get_if<Form>(&solid->form);
  if (form != nullptr) return *form;
  const auto* fault = std::get_if<Unreadable>(&solid->form);
  ADD_FAILURE() << "another form; fault "
                << (fault == nullptr ? "none" : std::string(TextOf(fault->reason)));
  return Form();
}

inline Unreadable ReadFault(const std::string& items, const std::string& schema = "IFC2X3",
                            const ReadingOptions& options = {}) {
  const SolidPointer solid = ReadItem(items, schema, options);
  const auto* fault = std::get_if<Unreadable>(&solid->form);
  EXPECT_NE(fault, nullptr);
  return fault == nullptr ? Unreadable{} : *fault;
}

inline void ExpectPoint(const Point3& point, double x, double y, double z, double error = 1e-9) {
  EXPECT_NEAR(point.x, x, error);
  EXPECT_NEAR(point.y, y, error);
  EXPECT_NEAR(point.z, z, error);
}
inline void ExpectVector(const Vector3& v, double x, double y, double z) {
  ExpectPoint({v.x, v.y, v.z}, x, y, z);
}
inline void ExpectPoint(const Point2& point, double x, double y, double error = 1e-9) {
  EXPECT_NEAR(point.x, x, error);
  EXPECT_NEAR(point.y, y, error);
}

/// The three schemas that the reading knows.
inline const std::string kSchemas[] = {"IFC2X_FINAL", "IFC2X2_FINAL", "IFC2X3"};

}  // namespace KelIFC::building

#endif  // TESTS_BUILDING_READ_MODEL_TEXT_H_
