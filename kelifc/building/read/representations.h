#ifndef KELIFC_BUILDING_READ_REPRESENTATIONS_H_
#define KELIFC_BUILDING_READ_REPRESENTATIONS_H_

#include <cstddef>
#include <optional>
#include <string_view>

#include "kelifc/building/facts/number_map.h"
#include "kelifc/building/read/read_context.h"

namespace KelIFC::building {

/// Chooses among the representations of products.
class RepresentationChooser {
 public:
  /// The representation of the body: "Body" if it has a solid, else the first one with a solid,
  /// else one whose items are not known. Never an axis, a footprint, a box or another one that
  /// shows something else. None, and `why`, if there is none with items.
  Instance ChooseBody(const Instance& product, Unreadable& why);

  /// The first representation of a name, in upper case, of the first 16; none if there is none.
  static Instance FindByName(const Instance& product, std::string_view name);

 private:
  // What the items of a representation are, the better one the greater.
  enum class Content { kEmpty, kNeverBody, kUnknown, kSolid };

  struct Choice {
    Instance body;
    Unreadable why;
  };

  Content ContentOf(const Instance& representation, int depth);
  Choice ChooseFrom(const Instance& shape);

  NumberMap<Content> contents;  // of representations
  NumberMap<Choice> choices;    // of shapes
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_REPRESENTATIONS_H_
