#ifndef KELIFC_CORE_SET_OF_MEMBERS_H_
#define KELIFC_CORE_SET_OF_MEMBERS_H_

#include <vector>

#include "kelifc/core/aggregate.h"
#include "kelifc/core/member.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// A set attribute of references, or an inverse set.
class KELIFC_API SET_OF_MEMBERS : public SET<MEMBER> {
 public:
  /// An unset attribute of `holder`, which becomes the owner of each parsed reference. `holder` can
  /// be null and must outlive the set.
  explicit SET_OF_MEMBERS(IfcUnknown* holder = nullptr) : owner(holder) {}
  SET_OF_MEMBERS(const SET_OF_MEMBERS&) = default;
  SET_OF_MEMBERS& operator=(const SET_OF_MEMBERS&) = default;
  ~SET_OF_MEMBERS() override = default;

  /// Only marks the set as existing. Does not add the instances.
  SET_OF_MEMBERS& operator=(const std::vector<IfcUnknown*>& items);

  /// Parses the references as LIST_OF_MEMBERS does, and keeps equal ones. GetExists does not
  /// change. Without a parenthesis the set is empty and the cursor does not move.
  const char* Parse(const char* text);

 private:
  IfcUnknown* owner;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_SET_OF_MEMBERS_H_
