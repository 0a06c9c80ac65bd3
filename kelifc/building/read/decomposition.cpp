#include "kelifc/building/read/decomposition.h"

namespace KelIFC::building {

Decomposition::Decomposition(const Model& owner, const Relations& related)
    : model(owner), relations(related) {
  for (const Instance& element : relations.Elements()) {
    Complete(element);
    if (nodes[element.Number()].isProduct) products.push_back(element);
  }
  for (const Instance& product : products) {
    std::size_t at = product.Number();
    while (CycleOf(at) == 0) {
      at = relations.WholeOf(at).number;
      if (at == 0 || !withParts.try_emplace(at, true).second) break;
    }
  }
}

const Decomposition::Node* Decomposition::Find(std::size_t number) const {
  const auto found = nodes.find(number);
  return found == nodes.end() ? nullptr : &found->second;
}

Decomposition::Node Decomposition::Make(const Instance& instance, const Node* whole) const {
  Node node;
  node.isComplete = true;
  const bool isPart = instance.Is(kIsElement) && !instance.Is(kIsAccessory);
  const bool isInherited = whole != nullptr && whole->spreads;
  node.spreads = instance.Is(kHasParts) || (isPart && isInherited);
  node.isProduct = instance.Is(kIsStructural) || (isPart && isInherited);
  if (whole != nullptr && node.isProduct) node.depth = whole->depth + 1;
  return node;
}

// Goes up to a whole that is known or has no whole, then down again.
void Decomposition::Complete(const Instance& element) {
  std::vector<Instance> chain;
  const Node* whole = nullptr;
  for (Instance at = element; at; at = model.Find(relations.WholeOf(at.Number()).number)) {
    const auto [found, isNew] = nodes.try_emplace(at.Number());
    if (isNew) {
      chain.push_back(at);
      continue;
    }
    if (found->second.isComplete) {
      whole = &found->second;
      break;
    }
    for (std::size_t i = chain.size(); i-- > 0;) {
      const std::size_t number = chain[i].Number();
      nodes[number].cycle = relations.WholeOf(number).relationship;
      if (number == at.Number()) break;
    }
    break;
  }
  for (std::size_t i = chain.size(); i-- > 0;) {
    Node& node = nodes[chain[i].Number()];
    const std::size_t cycle = node.cycle;
    node = Make(chain[i], whole);
    node.cycle = cycle;
    whole = &node;
  }
}

std::size_t Decomposition::WholeOf(std::size_t product) const {
  if (CycleOf(product) != 0) return 0;
  const std::size_t whole = relations.WholeOf(product).number;
  const Node* const node = Find(whole);
  return node != nullptr && node->isProduct ? whole : 0;
}

std::size_t Decomposition::CycleOf(std::size_t product) const {
  const Node* const node = Find(product);
  return node == nullptr ? 0 : node->cycle;
}

std::size_t Decomposition::DepthOf(std::size_t product) const {
  const Node* const node = Find(product);
  return node == nullptr ? 0 : node->depth;
}

std::size_t Decomposition::StoreyOf(std::size_t product) {
  std::vector<std::size_t> chain;
  std::size_t storey = 0;
  for (std::size_t at = product; at != 0;) {
    const auto [found, isNew] = storeys.try_emplace(at, 0);
    if (!isNew) {
      storey = found->second;  // 0 for a cycle, too
      break;
    }
    chain.push_back(at);
    if (model.Find(at).GetEntity() == Entity::kBuildingStorey) {
      storey = at;
      break;
    }
    const std::size_t container = relations.ContainerOf(at);
    at = container != 0 ? container : relations.WholeOf(at).number;
  }
  for (const std::size_t number : chain) storeys[number] = storey;
  return storey;
}

}  // namespace KelIFC::building
