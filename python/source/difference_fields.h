#ifndef PYTHON_SOURCE_DIFFERENCE_FIELDS_H_
#define PYTHON_SOURCE_DIFFERENCE_FIELDS_H_

#include <tuple>

#include "kelifc/kelifc.h"

#include "python/source/described.h"

namespace KelIFC::python {

template <>
struct Described<ElementChange> {
  static constexpr const char* kName = "ElementChange";
  static constexpr const char* kDoc = "An element that both revisions contain, and what differs.";
  static constexpr auto kFields = std::tuple{
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
            "The old and the new length in metres, or None if the difference does not count."}};
};

template <>
struct Described<BuildingDifference> {
  static constexpr const char* kName = "Difference";
  static constexpr const char* kDoc =
      "What differs between two revisions of a building. Elements are named by their instance "
      "numbers.";
  static constexpr auto kFields = std::tuple{
      Field{"added", &BuildingDifference::added, "Elements of the new revision only."},
      Field{"removed", &BuildingDifference::removed, "Elements of the old revision only."},
      Field{"changed", &BuildingDifference::changed, "Elements of both that differ."},
      Field{"same", &BuildingDifference::same, "How many elements did not change."}};
};

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_DIFFERENCE_FIELDS_H_
