#ifndef EXPORT_SAF_CROSS_SECTION_LIST_H_
#define EXPORT_SAF_CROSS_SECTION_LIST_H_

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kelifc/building/building.h"

#include "export/saf/identifiers.h"
#include "export/saf/material_list.h"
#include "export/saf/workbook.h"

namespace KelIFC::exporting::saf {

/// The rows of the sheets "StructuralCrossSection" and "CompositeShapeDef". A cross-section is a
/// profile with a material.
class CrossSectionList {
 public:
  /// All references must stay valid.
  CrossSectionList(const std::vector<BuildingProfile>& profiles, MaterialList& materials,
                   Workbook& workbook, IdList& ids);

  /// The name of the cross-section. Its first call with a profile and a material writes the rows.
  /// It is empty if the cross-section cannot be written: the index is not one of a profile, the
  /// outline has too many points for a cell, or the sheet is full.
  const std::string& NameOf(std::size_t profile, const BuildingIndex& material);

  /// How many names were shortened.
  std::size_t GetShortened() const { return names.GetShortened(); }

 private:
  std::string Write(const BuildingProfile& profile, std::string_view material, bool isFirst);
  bool WriteShape(const BuildingProfile& profile, std::string_view name, std::string_view material);

  const std::vector<BuildingProfile>& profiles;
  MaterialList& materials;
  Table& sections;
  Table& shapes;
  IdList& ids;
  NameList names;
  std::map<std::pair<std::size_t, std::string>, std::string> written;  // by profile and material
  std::vector<bool> hasMaterial;  // of each profile: it is written with at least one material
};

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_CROSS_SECTION_LIST_H_
