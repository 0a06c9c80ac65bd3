#include "kelifc/building/read/representations.h"

#include <algorithm>
#include <string>

#include "kelifc/core/text/ascii.h"

namespace KelIFC::building {
namespace {

// Maps in maps are looked into so far; what is deeper counts as a solid.
constexpr int kMaxLook = 16;

// How many representations are searched for one of a name.
constexpr std::size_t kMostNamed = 16;

constexpr std::string_view kBody = "BODY";

// Names of representations that do not show the body.
constexpr std::string_view kOthers[] = {
    "AXIS",       "FOOTPRINT", "FOOT PRINT", "BOX", "BOUNDINGBOX", "PLAN",
    "ANNOTATION", "CLEARANCE", "REFERENCE",  "COG", "LIGHTING",    "PROFILE",
};

std::string NameOf(const Instance& representation) {
  return ascii::ToUpperCase(representation.Get(Attribute::kIdentifier).Text());
}

Value RepresentationsOf(const Instance& product) {
  return product.Get(Attribute::kRepresentation).Target().Get(Attribute::kRepresentations);
}

}  // namespace

RepresentationChooser::Content RepresentationChooser::ContentOf(const Instance& representation,
                                                                int depth) {
  if (depth == 0) return Content::kSolid;
  // What is being looked at contains itself: the reading of the items finds the cycle.
  const auto [found, isNew] = contents.try_emplace(representation.Number(), Content::kUnknown);
  if (!isNew) return found->second;
  const Value items = representation.Get(Attribute::kItems);
  Content best = Content::kEmpty;
  for (std::size_t i = 0; i < items.Size() && best != Content::kSolid; ++i) {
    const Instance item = items[i].Target();
    Content content = Content::kUnknown;
    if (item.Is(kIsNeverBody)) content = Content::kNeverBody;
    if (item.Is(kIsSolidItem)) content = Content::kSolid;
    if (item.GetEntity() == Entity::kMappedItem) {
      const Instance map = item.Get(Attribute::kMappingSource).Target();
      const Instance mapped = map.Get(Attribute::kMappedRepresentation).Target();
      content = mapped ? ContentOf(mapped, depth - 1) : Content::kUnknown;
    }
    best = std::max(best, content);
  }
  contents[representation.Number()] = best;
  return best;
}

Instance RepresentationChooser::ChooseBody(const Instance& product, Unreadable& why) {
  why = {LossReason::kNoRepresentation, product.Number()};
  const Value stated = product.Get(Attribute::kRepresentation);
  if (!stated.IsSet()) return {};
  const Instance shape = Follow(product, Attribute::kRepresentation, why);
  if (!shape) return {};
  const auto [found, isNew] = choices.try_emplace(shape.Number());
  if (isNew) found->second = ChooseFrom(shape);
  why = found->second.why;
  return found->second.body;
}

RepresentationChooser::Choice RepresentationChooser::ChooseFrom(const Instance& shape) {
  const Value list = shape.Get(Attribute::kRepresentations);
  Choice choice;
  choice.why = {LossReason::kNoItems, shape.Number()};
  int best = 0;
  for (std::size_t i = 0; i < list.Size(); ++i) {
    const Instance representation = list[i].Target();
    if (!representation) {
      if (best == 0) choice.why = {LossReason::kDangling, shape.Number()};
      continue;
    }
    const std::string name = NameOf(representation);
    if (std::find(std::begin(kOthers), std::end(kOthers), name) != std::end(kOthers)) continue;
    const int rank =
        2 * static_cast<int>(ContentOf(representation, kMaxLook)) + (name == kBody ? 1 : 0);
    if (rank < 2 || rank <= best) {
      if (best == 0) choice.why = {LossReason::kNoItems, representation.Number()};
      continue;
    }
    best = rank;
    choice.body = representation;
  }
  return choice;
}

Instance RepresentationChooser::FindByName(const Instance& product, std::string_view name) {
  const Value list = RepresentationsOf(product);
  for (std::size_t i = 0; i < std::min(list.Size(), kMostNamed); ++i) {
    const Instance representation = list[i].Target();
    if (representation && NameOf(representation) == name) return representation;
  }
  return {};
}

}  // namespace KelIFC::building
