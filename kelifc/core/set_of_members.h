#ifndef KELIFC_CORE_SET_OF_MEMBERS_H_
#define KELIFC_CORE_SET_OF_MEMBERS_H_

#include <vector>

#include "kelifc/core/aggregate.h"
#include "kelifc/core/member.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// A set attribute of references, or an inverse.
class KELIFC_API SET_OF_MEMBERS : public SET<MEMBER> {
 public:
  /// An unset attribute of `holder`, which becomes the owner of each reference that is read.
  explicit SET_OF_MEMBERS(IfcUnknown* holder = nullptr) : owner(holder) {}
  SET_OF_MEMBERS(const SET_OF_MEMBERS&) = default;
  SET_OF_MEMBERS& operator=(const SET_OF_MEMBERS&) = default;
  ~SET_OF_MEMBERS() override = default;

  /// Only marks the set as existing: the instances are not taken over.
  SET_OF_MEMBERS& operator=(const std::vector<IfcUnknown*>& items);

  /// Reads the references as a list does, equal ones included. The mark that the set exists stays
  /// as it was; without a parenthesis the set is empty and the cursor does not move.
  const char* Parse(const char* text);

 private:
  IfcUnknown* owner;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_SET_OF_MEMBERS_H_
