#ifndef PYTHON_SOURCE_DIFFERENCE_FIELDS_H_
#define PYTHON_SOURCE_DIFFERENCE_FIELDS_H_

#include "kelifc/kelifc.h"

#include "python/source/described.h"

namespace KelIFC::python {

template <>
inline constexpr auto kDescribed<ElementChange> = Describe(
    "ElementChange", "An element that both revisions contain, and what differs.",
    Field{"old_id", &ElementChange::oldId, "The instance number in the old revision."},
    Field{"new_id", &ElementChange::newId, "The instance number in the new revision."},
    Field{"matched_by", &ElementChange::matchedBy,
          "How the two were found to be one element: 'guid' or 'geometry'."},
    Field{"moved", &ElementChange::moved,
          "How far the element moved, in metres; 0.0 if the move does not count."},
    Field{"rotated", &ElementChange::rotated,
          "How far the element turned, in radians; 0.0 if the rotation does not count."},
    Field{"profile", &ElementChange::profile,
          "The old and the new section, or None if they are equal."},
    Field{"length", &ElementChange::length,
          "The old and the new length in metres, or None if the difference does not count."});

template <>
inline constexpr auto kDescribed<BuildingDifference> = Describe(
    "Difference",
    "What differs between two revisions of a building. Elements are named by their instance "
    "numbers.",
    Field{"added", &BuildingDifference::added, "Elements of the new revision only."},
    Field{"removed", &BuildingDifference::removed, "Elements of the old revision only."},
    Field{"changed", &BuildingDifference::changed, "Elements of both that differ."},
    Field{"same", &BuildingDifference::same, "How many elements did not change."});

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_DIFFERENCE_FIELDS_H_
