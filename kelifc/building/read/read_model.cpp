#include "kelifc/building/read/read_model.h"

#include <algorithm>
#include <cstddef>

#include "kelifc/building/read/decomposition.h"
#include "kelifc/building/read/head.h"
#include "kelifc/building/read/products.h"
#include "kelifc/building/reading_progress.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC::building {
namespace {

// Points and steps that the curves and shells of a model may take: many for each instance, so that
// only shapes that multiply each other reach it.
std::size_t BudgetOf(const IfcServer& server, const ReadingOptions& options) {
  constexpr std::size_t kAtLeast = 10'000'000;
  constexpr std::size_t kPerInstance = 8;
  return std::min(options.maxPoints, kAtLeast + kPerInstance * server.GetNumberCount());
}

bool IsReadable(IFC_RELEASE release) {
  return release == IFC_RELEASE_2X || release == IFC_RELEASE_2X2 || release == IFC_RELEASE_2X3;
}

}  // namespace

ModelFacts ReadModel(IfcServer& server, const ReadingOptions& options) {
  ModelFacts facts;
  if (!IsReadable(server.GetRelease())) return facts;
  const Model model(server);
  const Relations relations(model);
  ReadContext context{model, ReadUnits(relations.Project()), options, BudgetOf(server, options)};
  PlacementReader placements(context);
  facts.head = ReadHead(context, relations, placements);
  Decomposition decomposition(model, relations);
  ProductReader reader(context, relations, decomposition, placements);
  facts.products.reserve(decomposition.Products().size());
  ReadingProgress progress(options, decomposition.Products().size());
  for (const Instance& product : decomposition.Products()) {
    progress.Reach(facts.products.size());
    facts.products.push_back(reader.Read(product));
  }
  return facts;
}

}  // namespace KelIFC::building
