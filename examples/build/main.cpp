// Builds a model with one column in memory and saves it as a file of release 2x3.
#include <kelifc/kelifc.h>

using namespace KelIFC2x3;

/// Makes an instance. The server owns it and gives it the next instance number.
template <class Entity, class... Arguments>
Entity* Make(KelIFC::IfcServer& server, Arguments... arguments) {
  auto* entity = new Entity(arguments...);
  server.AddItem(entity);
  return entity;
}

IfcAxis2Placement3D* MakePlacement(KelIFC::IfcServer& server, double x, double y, double z) {
  auto* placement = Make<IfcAxis2Placement3D>(server);
  placement->SetLocation(*Make<KelIFC::IfcCartesianPoint>(server, x, y, z));
  return placement;
}

/// A rectangle of 0.3 by 0.5 that is extruded 2.7 upwards.
IfcExtrudedAreaSolid* MakeSolid(KelIFC::IfcServer& server) {
  auto* profile = Make<IfcRectangleProfileDef>(server);
  profile->SetProfileType(IfcProfileTypeEnum_AREA);
  profile->SetXDim(0.3);
  profile->SetYDim(0.5);
  auto* solid = Make<IfcExtrudedAreaSolid>(server);
  solid->SetSweptArea(profile);
  solid->SetPosition(MakePlacement(server, 0, 0, 0));
  solid->SetExtrudedDirection(Make<IfcDirection>(server, 0, 0, 1));
  solid->SetDepth(2.7);
  return solid;
}

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  KelIFC::IfcServer server;
  server.SetRelease(KelIFC::IFC_RELEASE_2X3);

  auto* metre = Make<IfcSiUnit>(server);
  metre->SetUnitType(IfcUnitEnum_LENGTHUNIT);
  metre->SetName(KelIFC::IfcSiUnitName_METRE);
  auto* units = Make<KelIFC::IfcUnitAssignment>(server);
  units->AddUnit(metre);
  Make<IfcProject>(server)->SetUnitsInContext(units);

  auto* body = Make<IfcShapeRepresentation>(server);
  body->SetRepresentationIdentifier("Body");
  body->AddItem(MakeSolid(server));
  auto* shape = Make<IfcProductDefinitionShape>(server);
  shape->AddRepresentation(body);

  auto* place = Make<IfcLocalPlacement>(server);
  place->SetRelativePlacement(MakePlacement(server, 2, 3, 0));
  auto* column = Make<IfcColumn>(server);
  column->SetName("Column A");
  column->SetObjectPlacement(place);
  column->SetRepresentation(shape);

  auto* storey = Make<IfcBuildingStorey>(server);
  storey->SetName("Ground floor");
  auto* contains = Make<IfcRelContainedInSpatialStructure>(server);
  contains->SetRelatingStructure(storey);
  contains->AddRelatedElement(column);
  return server.SaveIfcFile(argv[1]);
}
