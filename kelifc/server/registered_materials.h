#ifndef KELIFC_SERVER_REGISTERED_MATERIALS_H_
#define KELIFC_SERVER_REGISTERED_MATERIALS_H_

#include <cstddef>
#include <unordered_map>

namespace KelIFC {

class IfcServer;
class IfcUnknown;

/// The materials that the registries of a model of release 1.5.1 list. When the statement of a
/// registry is read, the registry sets the attribute RegisteredBy of its materials. So the value of
/// this attribute in the model is not that of the statement of the material.
class RegisteredMaterials {
 public:
  /// Collects the materials of a model that was loaded with options and that must live as long as
  /// this object. Only a registry whose
  /// statement comes after that of the material counts, because reading a material sets the
  /// attribute too. Of several registries the last one counts. Linear in the size of the model, but
  /// for sorting the registries.
  void Collect(IfcServer& loaded);

  /// Sets RegisteredBy of `stated`, which was parsed from the statement with a number, as the load
  /// set it in the model. Returns false and changes nothing if no registry lists that number or if
  /// the instance is not a material.
  bool Complete(std::size_t number, IfcUnknown& stated) const;

 private:
  IfcServer* model = nullptr;
  std::unordered_map<std::size_t, std::size_t> registries;  // numbers, by that of the material
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_REGISTERED_MATERIALS_H_
