#ifndef KELIFC_BUILDING_COMPARE_ELEMENT_CHANGE_H_
#define KELIFC_BUILDING_COMPARE_ELEMENT_CHANGE_H_

#include <optional>
#include <string>

#include "kelifc/building/building.h"
#include "kelifc/building/difference.h"

namespace KelIFC::building {

/// What describes the section of an element to a person, as ElementChange::profile defines it.
std::string SectionText(const Building& building, const BuildingElement& element);

/// True if two elements have equal profiles, or surfaces equal thicknesses within 0.1 mm.
bool HaveSameSection(const Building& oldBuilding, const BuildingElement& oldElement,
                     const Building& newBuilding, const BuildingElement& newElement);

/// What differs between two elements; none if nothing does. The ids are set.
std::optional<ElementChange> ChangeOf(const Building& oldBuilding,
                                      const BuildingElement& oldElement,
                                      const Building& newBuilding,
                                      const BuildingElement& newElement,
                                      const ComparisonOptions& options);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_COMPARE_ELEMENT_CHANGE_H_
