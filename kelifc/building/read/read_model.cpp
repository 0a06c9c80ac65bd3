#include "kelifc/building/read/read_model.h"

#include "kelifc/building/read/decomposition.h"
#include "kelifc/building/read/head.h"
#include "kelifc/building/read/products.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC::building {
namespace {

bool IsReadable(IFC_RELEASE release) {
  return release == IFC_RELEASE_2X || release == IFC_RELEASE_2X2 || release == IFC_RELEASE_2X3;
}

}  // namespace

ModelFacts ReadModel(IfcServer& server, const ReadingOptions& options) {
  ModelFacts facts;
  if (!IsReadable(server.GetRelease())) return facts;
  const Model model(server);
  const Relations relations(model);
  ReadContext context{model, ReadUnits(relations.Project()), options, options.maxPoints};
  PlacementReader placements(context);
  facts.head = ReadHead(context, relations, placements);
  Decomposition decomposition(model, relations);
  ProductReader reader(context, relations, decomposition, placements);
  facts.products.reserve(decomposition.Products().size());
  for (const Instance& product : decomposition.Products()) {
    facts.products.push_back(reader.Read(product));
  }
  return facts;
}

}  // namespace KelIFC::building
