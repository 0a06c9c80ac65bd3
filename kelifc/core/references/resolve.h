#ifndef KELIFC_CORE_REFERENCES_RESOLVE_H_
#define KELIFC_CORE_REFERENCES_RESOLVE_H_

#include <cstddef>

#include "kelifc/core/aggregate.h"
#include "kelifc/core/member.h"
#include "kelifc/core/references/cast_cache.h"
#include "kelifc/core/references/model.h"

namespace KelIFC {

/// Returns the instance of a reference: the instance that the model has under its number, otherwise
/// the result of GetInstance, such as an inline value. So references without an owner resolve, too.
inline const IfcUnknown* ResolveMember(const MEMBER& member, IfcServer* server) {
  const IfcUnknown* instance = FindInstance(server, static_cast<std::size_t>(member));
  return instance != nullptr ? instance : member.GetInstance();
}

/// Adds the instances of `members` to `view`, a SET or LIST of pointers. The view gets one element
/// for each reference: null if the reference does not resolve or its instance has another class.
/// Equal elements are kept. Without a server nothing is added. The instances belong to the model.
template <template <class> class View, class T, class Members>
void ResolveMemberSet(View<T*>& view, const Members& members, IfcServer* server) {
  if (server == nullptr) return;
  thread_local CastCache<const T> casts;
  view.Reserve(view.GetSize() + members.GetSize());
  for (std::size_t i = 1; i <= members.GetSize(); ++i) {
    // The element type of the view decides whether its instances are const.
    view.Append(const_cast<T*>(casts.Cast(ResolveMember(members.GetItem(i), server))));
  }
}

}  // namespace KelIFC

#endif  // KELIFC_CORE_REFERENCES_RESOLVE_H_
