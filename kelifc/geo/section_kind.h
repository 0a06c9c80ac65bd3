#ifndef KELIFC_GEO_SECTION_KIND_H_
#define KELIFC_GEO_SECTION_KIND_H_

#include "kelifc/platform/com_types.h"

namespace KelIFC {

/// The kinds of sections, as IGeoSection::get_Kind stores them. The kind of a section determines
/// which further interface its object has. A new object has the kind SECTION_NONE.
enum SectionKind : LONG {
  SECTION_NONE = 0,
  SECTION_R = 1,        ///< IGeoSectionR: a rectangle
  SECTION_C = 2,        ///< IGeoSectionC: a circle
  SECTION_T = 3,        ///< IGeoSectionT: a T with the flange on top
  SECTION_PROFILE = 8,  ///< IGeoSectionProfile: a polygon, of which only the name is known
  SECTION_THICK = 9,    ///< IGeoSectionThick: a thickness
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_SECTION_KIND_H_
