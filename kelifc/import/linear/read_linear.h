#ifndef KELIFC_IMPORT_LINEAR_READ_LINEAR_H_
#define KELIFC_IMPORT_LINEAR_READ_LINEAR_H_

#include <memory>
#include <unordered_map>
#include <vector>

#include "kelifc/core/representation_item.h"
#include "kelifc/import/linear/linear_facts.h"
#include "kelifc/import/shape/read_placements.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// Whether the boundaries of faceted solids are read.
enum class Boundaries { kRead, kLeftOut };

/// Reads linear products. Placements, mapped representations and clippings that several products
/// share are read once and kept, so the model must not change during the reader's life. The server
/// must outlive the reader.
template <class Release>
class LinearReader {
 public:
  using IfcProduct = typename Release::IfcProduct;
  using IfcRepresentation = typename Release::IfcRepresentation;

  /// `scale` is the factor from the length unit of the file to metres.
  LinearReader(const IfcServer& server, double scale, Boundaries boundaries)
      : server(server), scale(scale), boundaries(boundaries), placements(scale) {}

  /// Reads one product. Of its representations it takes one: the first that contains an extrusion,
  /// otherwise the first with a faceted solid, a mapped item, a clipping or a surface model, in
  /// this order of preference.
  LinearFacts Read(const IfcProduct& product);

 private:
  using Extrusion = typename Release::IfcExtrudedAreaSolid;
  using Clipping = typename Release::IfcBooleanClippingResult;
  using Shared = std::shared_ptr<const RepresentationFacts>;

  std::vector<LinearPartFacts> ReadMapped(const IfcRepresentation& chosen);
  Shared SharedRepresentation(const IfcRepresentation* representation);
  RepresentationFacts ReadRepresentation(const IfcRepresentation& representation);
  bool ReadItem(const IfcRepresentationItem* item, LinearItemFacts& facts);
  const Extrusion* Unclipped(const Clipping* clipping);

  const IfcServer& server;
  double scale;
  Boundaries boundaries;
  PlacementReader<Release> placements;
  std::unordered_map<const IfcRepresentation*, Shared> mapped;
  std::unordered_map<const Clipping*, const Extrusion*> unclipped;
};

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_LINEAR_READ_LINEAR_H_
