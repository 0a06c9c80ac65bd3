#include <optional>

#include "tools/kelifc/building_json.h"

namespace command {
namespace {

using KelIFC::BuildingElement;
using KelIFC::MemberAxis;
using KelIFC::Mesh;
using KelIFC::SurfaceRegion;

void WriteIdentity(JsonWriter& json, const BuildingElement& element) {
  json.Member("id", element.id);
  json.Member("class", element.className);
  WriteTextMember(json, "guid", element.guid);
  json.Member("name", element.name);
  json.Member("tag", element.tag);
  WriteTextMember(json, "type", element.type);
  WriteIdMember(json, "storey", element.storey);
  WriteIdMember(json, "storeyByHeight", element.storeyByHeight);
  WriteIdMember(json, "partOf", element.partOf);
  WriteMember(json, "material", element.material);
}

void WriteExactness(JsonWriter& json, const BuildingElement& element) {
  json.Member("kind", TextOf(element.kind));
  json.Member("source", TextOf(element.source));
  json.Member("mapped", element.mappedDepth);
  json.Member("deviation", element.deviation);
  json.Key("volumeRatio");
  element.volumeRatio ? json.Value(*element.volumeRatio) : json.Null();
  json.Member("approximate", element.isApproximate);
  json.Member("cutouts", element.cutouts);
  WriteMember(json, "box", element.box);
  json.Member("volume", element.volume);
}

void WriteFaces(JsonWriter& json, const Mesh& mesh) {
  json.Key("faces");
  json.BeginList();
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    json.BeginList();
    for (std::size_t loop = 0; loop < mesh.LoopCount(face); ++loop) {
      json.BeginList();
      for (const Mesh::Index point : mesh.LoopOf(face, loop)) json.Value(std::size_t{point});
      json.EndList();
    }
    json.EndList();
  }
  json.EndList();
}

void WriteBody(JsonWriter& json, const KelIFC::BuildingBody& body, bool hasBoundary) {
  json.Key("body");
  json.BeginObject();
  WriteMember(json, "box", body.box);
  json.Member("volume", body.volume);
  json.Member("closed", body.isClosed);
  if (hasBoundary && body.mesh) {
    WriteMember(json, "points", body.mesh->points);
    WriteFaces(json, *body.mesh);
  }
  json.EndObject();
}

void WriteOpenings(JsonWriter& json, const BuildingElement& element) {
  json.Key("openings");
  json.BeginList();
  for (const KelIFC::BuildingOpening& opening : element.openings) {
    json.BeginObject();
    json.Member("id", opening.id);
    WriteTextMember(json, "guid", opening.guid);
    json.Member("kind", TextOf(opening.kind));
    WriteIdMember(json, "fill", opening.fill);
    WriteMember(json, "outline", opening.outline);
    json.Member("depth", opening.depth);
    json.EndObject();
  }
  json.EndList();
}

void WriteEnd(JsonWriter& json, const std::optional<KelIFC::EndPlane>& end) {
  if (!end) return json.Null();
  json.BeginObject();
  WriteMember(json, "point", end->point);
  WriteMember(json, "normal", end->normal);
  json.EndObject();
}

void WriteMemberAxis(JsonWriter& json, const MemberAxis& member) {
  json.Member("curve", TextOf(member.curve));
  WriteMember(json, "axis", member.points);
  json.Member("profile", member.profile);
  WriteMember(json, "profileEnd", member.endProfile);
  WriteMember(json, "y", member.y);
  WriteMember(json, "offset", member.offset);
  json.Key("ends");
  json.BeginList();
  for (const auto& end : member.ends) WriteEnd(json, end);
  json.EndList();
}

void WriteSweep(JsonWriter& json, const KelIFC::WallSweep& sweep) {
  json.Key("sweep");
  json.BeginObject();
  json.Member("curve", TextOf(sweep.curve));
  WriteMember(json, "points", sweep.points);
  WriteMember(json, "direction", sweep.direction);
  json.Member("height", sweep.height);
  json.EndObject();
}

void WriteRegion(JsonWriter& json, const SurfaceRegion& surface) {
  WriteMember(json, "outline", surface.outline);
  json.Key("arcs");
  json.BeginList();
  for (const KelIFC::OutlineArc& arc : surface.arcs) {
    json.BeginList();
    json.Value(arc.edge);
    WriteValue(json, arc.through);
    json.EndList();
  }
  json.EndList();
  WriteMember(json, "holes", surface.holes);
  WriteMember(json, "normal", surface.normal);
}

void WriteSurface(JsonWriter& json, const SurfaceRegion& surface) {
  surface.sweep ? WriteSweep(json, *surface.sweep) : WriteRegion(json, surface);
  json.Member("thickness", surface.thickness);
  json.Member("reference", surface.reference);
  json.Key("layers");
  json.BeginList();
  for (const KelIFC::MaterialLayer& layer : surface.layers) {
    json.BeginObject();
    WriteMember(json, "material", layer.material);
    json.Member("thickness", layer.thickness);
    json.EndObject();
  }
  json.EndList();
}

}  // namespace

void WriteElement(JsonWriter& json, const BuildingElement& element, bool hasBoundary) {
  json.BeginObject();
  WriteIdentity(json, element);
  WriteExactness(json, element);
  WriteBody(json, element.body, hasBoundary);
  WriteOpenings(json, element);
  if (element.member) WriteMemberAxis(json, *element.member);
  if (element.surface) WriteSurface(json, *element.surface);
  json.EndObject();
}

}  // namespace command
