#ifndef EXPORT_SAF_MATERIAL_LIST_H_
#define EXPORT_SAF_MATERIAL_LIST_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "kelifc/building/building.h"

#include "export/saf/identifiers.h"
#include "export/saf/workbook.h"

namespace KelIFC::exporting::saf {

/// The type of a material: "Concrete", "Steel", "Timber", "Aluminium" or "Masonry" if its name says
/// so in one of several languages or by a strength class such as "C25/30"; otherwise "Other".
std::string_view MaterialTypeOf(std::string_view name);

/// The strength class that the name contains, such as "C25/30" or "S355". Otherwise the name.
std::string_view MaterialQualityOf(std::string_view name);

/// The rows of the sheet "StructuralMaterial".
class MaterialList {
 public:
  /// Writes a row for each material. All references must stay valid.
  MaterialList(const std::vector<BuildingMaterial>& materials, Table& table, IdList& ids);

  /// The name of a material of the workbook. For an element without a material it is "Unknown"; the
  /// first call of this kind writes its row.
  const std::string& NameOf(const BuildingIndex& material);

  /// How many names were shortened.
  std::size_t GetShortened() const { return list.GetShortened(); }

 private:
  std::string Write(std::string_view name);

  Table& table;
  IdList& ids;
  NameList list;
  std::vector<std::string> names;
  std::string unknown;
};

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_MATERIAL_LIST_H_
