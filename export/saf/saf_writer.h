#ifndef EXPORT_SAF_SAF_WRITER_H_
#define EXPORT_SAF_SAF_WRITER_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include "kelifc/building/building.h"

#include "export/export.h"
#include "export/saf/cross_section_list.h"
#include "export/saf/identifiers.h"
#include "export/saf/material_list.h"
#include "export/saf/node_list.h"
#include "export/saf/omission_list.h"
#include "export/saf/workbook.h"

namespace KelIFC::exporting::saf {

/// Why an element is not in the workbook. It is empty if the element was written.
using Obstacle = std::string_view;

inline constexpr Obstacle kNoIdealisation = "elements without an idealisation";
inline constexpr Obstacle kOutOfRange = "elements with coordinates that are not usable";
inline constexpr Obstacle kTooSmall = "elements smaller than the node tolerance";
inline constexpr Obstacle kTooManyPoints = "elements with too many points for a cell";
inline constexpr Obstacle kNoCrossSection = "members without a usable profile";
inline constexpr Obstacle kSheetFull = "elements beyond the last row of a sheet";

/// The largest number of nodes of a member or a surface: their names must fit into a cell.
inline constexpr std::size_t kMostNodes = 3'000;

/// What the parts of the export share.
struct SafWriter {
  /// All references must stay valid.
  SafWriter(const Building& building, const ExportOptions& options, Workbook& workbook);

  /// The name of the storey that contains the element, or of the storey by its height. Empty if
  /// there is none.
  std::string_view LayerOf(const BuildingElement& element) const;

  /// A new name for an element.
  std::string TakeName(const BuildingElement& element);

  /// A new id for an element, which has the name.
  std::string TakeId(const BuildingElement& element, std::string_view name);

  const Building& building;
  Workbook& workbook;
  IdList ids;
  NameList names;  ///< of members, surfaces, openings and bodies
  NodeList nodes;
  MaterialList materials;
  CrossSectionList sections;
  OmissionList omissions;
  std::unordered_map<std::size_t, std::string> storeys;  ///< the names by instance number

 private:
  void WriteStoreys();
};

/// True if the coordinates are finite and not beyond a million kilometres.
bool IsUsable(const Point3& point);

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_SAF_WRITER_H_
