#ifndef KELIFC_SERVER_RELEASE_H_
#define KELIFC_SERVER_RELEASE_H_

#include <cstdint>

namespace KelIFC {

/// The releases of the schema that a model can be of. Each has its own entity classes, in the
/// namespace that is named here.
enum IFC_RELEASE : std::int32_t {
  IFC_RELEASE_NONE = 0,  ///< not set; only the classes that all releases share
  IFC_RELEASE_151 = 1,   ///< 1.5.1, KelIFC151
  IFC_RELEASE_20 = 2,    ///< 2.0, KelIFC20
  IFC_RELEASE_2X = 3,    ///< 2x, KelIFC2x
  IFC_RELEASE_2X2 = 4,   ///< 2x2, KelIFC2x2
  IFC_RELEASE_2X3 = 5,   ///< 2x3, KelIFC2x3
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_RELEASE_H_
