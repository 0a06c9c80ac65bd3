#ifndef KELIFC_GEO_READING_COMPLETE_READING_H_
#define KELIFC_GEO_READING_COMPLETE_READING_H_

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "kelifc/building/building.h"
#include "kelifc/platform/com_types.h"

namespace KelIFC {

/// The collection of the structure that shows an element of a building.
enum class ShownAs : std::uint8_t { kNothing, kColumn, kBeam, kWall, kPlate, kFoot };

/// A building, with what the object model asks about it. Objects share it, so it stays valid after
/// the next load. It never changes.
class CompleteReading {
 public:
  /// Takes the building.
  explicit CompleteReading(Building read);

  /// Returns the building that the constructor took.
  const Building& GetBuilding() const { return building; }

  /// Returns the collection that shows the element at an index of Building::elements. Columns and
  /// beams must be members, walls and plates plane surfaces. A part is shown by its whole if that
  /// is shown.
  ShownAs ShownAsOf(std::size_t index) const { return shown[index]; }

  /// Returns the storey with an instance number, or null.
  const BuildingStorey* FindStorey(std::size_t id) const;

  /// Returns the number of the storey with an instance number, or kNoStoreyNumber if there is no
  /// such storey or it has no elevation. The lowest storey at or above the level 0 has the number
  /// 0.
  SHORT StoreyNumberOf(std::size_t id) const;

 private:
  void NumberStoreys();
  void FindShown();

  Building building;
  std::vector<ShownAs> shown;                                // by the index of the element
  std::vector<SHORT> storeyNumbers;                          // by the index of the storey
  std::unordered_map<std::size_t, std::size_t> storeysById;  // indices
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_READING_COMPLETE_READING_H_
