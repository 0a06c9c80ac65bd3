#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>
#include <string>

#include "tests/paths.h"
#include "tests/tools/schemac/describe.h"
#include "tools/schemac/text_files.h"

// Every attribute that a class stores has an operation that reads it, and an operation that sets it
// or adds to it. The table lists the attributes that deliberately lack one of them.

namespace schemac {
namespace {

struct Exception {
  const char* type;
  const char* attribute;
  const char* releases;
  const char* lacks;
};

constexpr Exception kExceptions[] = {
    // Attributes that another operation derives and keeps.
    {"IfcAttDrivenExtrudedSolid", "Path", "..20", "Set"},
    {"IfcAxis2Placement2D", "SecondAxis", "all", "Get Set"},
    {"IfcAxis2Placement3D", "P2", "all", "Get Set"},
    {"IfcRectangleProfileDef", "OutlineCurve", "..20", "Get Set"},
    // Attributes that nothing fills, and attributes that are set part by part.
    {"IfcBuilding", "ServicedBySystems", "151", "Get Set"},
    {"IfcCompositeCurveSegment", "UsingCurves", "all", "Set"},
    {"IfcDirection", "DirectionRatios", "all", "Set"},
    {"IfcObject", "PartOfGroups", "151", "Get Set"},
    {"IfcPropertySetDefinition", "DefinesType", "2x2..", "Set"},
    {"IfcPropertySingleValue", "Unit", "2x2..", "Get Set"},
    // Attributes that a load reads and a save writes, without any other use.
    {"IfcBuilding", "BuildingAddress", "2x..", "Get Set"},
    {"IfcElement", "Tag", "2x..", "Get Set"},
    {"IfcGeometricRepresentationContext", "TrueNorth", "2x..", "Get Set"},
    {"IfcMaterial", "Classification", "20", "Get Set"},
    {"IfcNamedUnit", "Dimensions", "all", "Get Set"},
    {"IfcObject", "DocumentReferences", "20", "Get Set"},
    {"IfcObject", "ObjectType", "2x..", "Get Set"},
    {"IfcObject", "OccurrenceProperties", "151", "Get Set"},
    {"IfcObject", "TypeDefinitions", "151", "Get Set"},
    {"IfcOwnerHistory", "AuditTrail", "..20", "Get Set"},
    {"IfcProduct", "Classification", "..20", "Get Set"},
    {"IfcProduct", "Cost", "151", "Get Set"},
    {"IfcProductDefinitionTopology", "TopologyRepresentation", "20", "Get Set"},
    {"IfcProject", "LongName", "2x..", "Get Set"},
    {"IfcProject", "Phase", "2x..", "Get Set"},
    {"IfcProject", "ProjectTypes", "151", "Get Set"},
    // Attributes that a host can only read.
    {"IfcAttDrivenExtrudedSolid", "Segments", "20", "Set"},
    {"IfcCartesianTransformationOperator", "Axis1", "2x..", "Set"},
    {"IfcCartesianTransformationOperator", "Axis2", "2x..", "Set"},
    {"IfcCartesianTransformationOperator", "LocalOrigin", "2x", "Set"},
    {"IfcCartesianTransformationOperator", "Scale", "2x..", "Set"},
    {"IfcCartesianTransformationOperator3D", "Axis3", "2x2..", "Set"},
    {"IfcCartesianTransformationOperator3DnonUniform", "Scale2", "2x2..", "Set"},
    {"IfcCartesianTransformationOperator3DnonUniform", "Scale3", "2x2..", "Set"},
    {"IfcColumn", "ColumnSectionArea", "20", "Set"},
    {"IfcColumn", "ColumnVolume", "20", "Set"},
    {"IfcDoorLiningProperties", "ShapeAspectStyle", "2x2..", "Set"},
    {"IfcDoorPanelProperties", "ShapeAspectStyle", "2x2..", "Set"},
    {"IfcEllipse", "SemiAxis1", "all", "Set"},
    {"IfcEllipse", "SemiAxis2", "all", "Set"},
    {"IfcFaceBasedSurfaceModel", "FbsmFaces", "2x2..", "Set"},
    {"IfcGeometricSet", "Elements", "2x..", "Set"},
    {"IfcMaterialLayerSet", "IsVentilated", "20", "Set"},
    {"IfcObject", "ExtendedProperties", "151", "Set"},
    {"IfcOwnerHistory", "ModifiedFlag", "20", "Set"},
    {"IfcProductRepresentation", "Name", "2x..", "Set"},
    {"IfcProductRepresentation", "Text", "2x..", "Set"},
    {"IfcShellBasedSurfaceModel", "SbsmBoundary", "2x..", "Set"},
    {"IfcWindowLiningProperties", "ShapeAspectStyle", "2x2..", "Set"},
    {"IfcWindowPanelProperties", "ShapeAspectStyle", "2x2..", "Set"},
    // Attributes that a host can only set.
    {"IfcSweptDiskSolid", "Directrix", "2x3", "Get"},
    {"IfcSweptDiskSolid", "EndParam", "2x3", "Get"},
    {"IfcSweptDiskSolid", "InnerRadius", "2x3", "Get Set"},
    {"IfcSweptDiskSolid", "Radius", "2x3", "Get"},
    {"IfcSweptDiskSolid", "StartParam", "2x3", "Get"},
    // Persons and organisations.
    {"IfcOrganization", "Addresses", "all", "Get"},
    {"IfcOrganization", "Description", "2x..", "Get"},
    {"IfcOrganization", "Id", "2x..", "Get Set"},
    {"IfcOrganization", "Roles", "all", "Get"},
    {"IfcPerson", "Addresses", "all", "Get Set"},
    {"IfcPerson", "GivenName", "2x..", "Get Set"},
    {"IfcPerson", "Id", "2x..", "Get Set"},
    {"IfcPerson", "MiddleNames", "..20", "Set"},
    {"IfcPerson", "MiddleNames", "2x..", "Get Set"},
    {"IfcPerson", "PrefixTitles", "..20", "Set"},
    {"IfcPerson", "PrefixTitles", "2x..", "Get Set"},
    {"IfcPerson", "Roles", "all", "Get Set"},
    {"IfcPerson", "SuffixTitles", "..20", "Set"},
    {"IfcPerson", "SuffixTitles", "2x..", "Get Set"},
    {"IfcPersonAndOrganization", "Roles", "all", "Get"},
};

/// The families in the order in which their classes depend on each other.
constexpr const char* kFamilies[] = {
    "values",   "kernel",        "placement", "units",      "materials", "representation",
    "actors",   "relationships", "curves",    "profiles",   "topology",  "solids",
    "elements", "properties",    "styles",    "structural",
};

std::filesystem::path SchemaFolder() {
  return std::filesystem::path(KelIFC::kSourceDir) / "kelifc/schema";
}

Description ReadDescription() {
  Description description;
  for (const std::string family : kFamilies) {
    const std::string path = (SchemaFolder() / (family + ".schema")).string();
    ParseDescription(path, ReadTextFile(path), description);
  }
  return description;
}

bool Has(const ResolvedClass& type, const std::string& name) {
  return std::any_of(type.operations.begin(), type.operations.end(),
                     [&](const ResolvedOperation& each) { return each.name == name; });
}

bool CanBeRead(const ResolvedClass& type, const std::string& attribute) {
  return Has(type, "Get" + attribute) || Has(type, "calc" + attribute) ||
         Has(type, "Calc" + attribute);
}

/// Returns whether an operation adds to an attribute: AddX adds to X, Xs, HasX or HasXs.
bool AddsTo(const Operation& operation, const std::string& attribute) {
  if (operation.name.rfind("Add", 0) != 0) return false;
  if (!operation.attribute.empty()) return operation.attribute == attribute;
  const std::string what = operation.name.substr(3);
  return attribute == what || attribute == what + "s" || attribute == "Has" + what ||
         attribute == "Has" + what + "s";
}

bool CanBeSet(const ResolvedClass& type, const std::string& attribute) {
  if (Has(type, "Set" + attribute)) return true;
  const auto& all = type.entity->operations;
  return std::any_of(all.begin(), all.end(), [&](const Operation& each) {
    return AddsTo(each, attribute) && Has(type, each.name);
  });
}

/// Returns text such as "IfcStair::ShapeType of 2x lacks Set" for each release and attribute.
std::set<std::string> FindMissing(const ReleaseModel& model) {
  std::set<std::string> missing;
  const std::string release(kReleases[model.release].mark);
  for (const auto& type : model.classes) {
    for (const Attribute* attribute : type.attributes) {
      const std::string head =
          type.entity->name + "::" + attribute->name + " of " + release + " lacks ";
      if (!CanBeRead(type, attribute->name)) missing.insert(head + "Get");
      if (!CanBeSet(type, attribute->name)) missing.insert(head + "Set");
    }
  }
  return missing;
}

std::set<std::string> FindExceptions(std::size_t release) {
  std::set<std::string> exceptions;
  for (const Exception& each : kExceptions) {
    if (!ReleaseSet::Read(each.releases)->Has(release)) continue;
    const std::string lacks = each.lacks;
    for (const std::string accessor : {"Get", "Set"}) {
      if (lacks.find(accessor) == std::string::npos) continue;
      exceptions.insert(std::string(each.type) + "::" + each.attribute + " of " +
                        std::string(kReleases[release].mark) + " lacks " + accessor);
    }
  }
  return exceptions;
}

TEST(Accessors, AreSearchedInEveryFamily) {
  std::set<std::string> described;
  for (const auto& file : std::filesystem::directory_iterator(SchemaFolder())) {
    if (file.path().extension() == ".schema") described.insert(file.path().stem().string());
  }
  EXPECT_EQ(described, std::set<std::string>(std::begin(kFamilies), std::end(kFamilies)));
}

TEST(Accessors, ExistForEveryAttributeExceptTheListedOnes) {
  const Description description = ReadDescription();
  for (std::size_t release = 0; release < kReleaseCount; ++release) {
    const auto missing = FindMissing(Resolve(description, release));
    const auto exceptions = FindExceptions(release);
    std::set<std::string> unexpected;
    std::set_difference(missing.begin(), missing.end(), exceptions.begin(), exceptions.end(),
                        std::inserter(unexpected, unexpected.end()));
    EXPECT_EQ(unexpected, std::set<std::string>()) << "neither described nor an exception";
    std::set<std::string> outdated;
    std::set_difference(exceptions.begin(), exceptions.end(), missing.begin(), missing.end(),
                        std::inserter(outdated, outdated.end()));
    EXPECT_EQ(outdated, std::set<std::string>()) << "a listed exception that has an accessor";
  }
}

TEST(Accessors, AreFoundByTheNameOfTheirAttribute) {
  const Resolved resolved(
      "entity IfcT : IfcUnknown all\n  doc T.\n"
      "entity IfcA : IfcUnknown all\n  doc A.\n"
      "  Name string\n  Parts set IfcT\n  HasOthers set IfcT\n  Area real\n  Hidden real\n"
      "  ops GetName, SetName, GetParts, AddPart, GetHasOthers, AddThem=HasOthers, calcArea\n");
  EXPECT_EQ(FindMissing(resolved.model),
            (std::set<std::string>{"IfcA::Area of 2x3 lacks Set", "IfcA::Hidden of 2x3 lacks Get",
                                   "IfcA::Hidden of 2x3 lacks Set"}));
}

}  // namespace
}  // namespace schemac
