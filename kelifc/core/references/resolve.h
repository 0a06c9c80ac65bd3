#ifndef KELIFC_CORE_REFERENCES_RESOLVE_H_
#define KELIFC_CORE_REFERENCES_RESOLVE_H_

#include <cstddef>

#include "kelifc/core/aggregate.h"
#include "kelifc/core/member.h"
#include "kelifc/core/references/cast_cache.h"
#include "kelifc/core/references/model.h"

namespace KelIFC {

/// The instance that a reference leads to: what the model has under its number, else what the
/// reference itself gives, which is also its value in place. So references without owner resolve.
inline const IfcUnknown* ResolveMember(const MEMBER& member, IfcServer* server) {
  const IfcUnknown* instance = FindInstance(server, static_cast<std::size_t>(member));
  return instance != nullptr ? instance : member.GetInstance();
}

/// Fills `view`, a SET or LIST of pointers, with the instances that `members` lead to. It becomes
/// as long as `members`, with null where a reference leads nowhere or to another class, and keeps
/// equal elements. Without a server it stays empty. The instances belong to the model.
template <template <class> class View, class T, class Members>
void ResolveMemberSet(View<T*>& view, const Members& members, IfcServer* server) {
  if (server == nullptr) return;
  thread_local CastCache<const T> casts;
  view.Reserve(view.GetSize() + members.GetSize());
  for (std::size_t i = 1; i <= members.GetSize(); ++i) {
    // A view says itself whether its instances can be changed.
    view.Append(const_cast<T*>(casts.Cast(ResolveMember(members.GetItem(i), server))));
  }
}

}  // namespace KelIFC

#endif  // KELIFC_CORE_REFERENCES_RESOLVE_H_
