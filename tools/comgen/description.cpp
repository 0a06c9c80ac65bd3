#include "tools/comgen/description.h"

#include <algorithm>

namespace comgen {

const Interface* Description::Find(const std::string& name) const {
  for (const Interface& interface : interfaces) {
    if (interface.name == name) return &interface;
  }
  return nullptr;
}

std::vector<const Operation*> Description::AllOperations(const Interface& interface) const {
  std::vector<const Operation*> all;
  if (!interface.base.empty()) all = AllOperations(*Find(interface.base));
  for (const Operation& operation : interface.operations) all.push_back(&operation);
  return all;
}

bool Description::Has(const Interface& interface, const std::string& name) const {
  return interface.name == name || (!interface.base.empty() && Has(*Find(interface.base), name));
}

std::vector<const Interface*> Description::Roots(const Class& type) const {
  std::vector<const Interface*> roots;
  for (const std::string& name : type.interfaces) {
    const bool isBase = std::any_of(
        type.interfaces.begin(), type.interfaces.end(),
        [&](const std::string& other) { return other != name && Has(*Find(other), name); });
    if (!isBase) roots.push_back(Find(name));
  }
  return roots;
}

bool Description::IsBase(const std::string& name) const {
  return std::any_of(interfaces.begin(), interfaces.end(),
                     [&](const Interface& interface) { return interface.base == name; });
}

}  // namespace comgen
