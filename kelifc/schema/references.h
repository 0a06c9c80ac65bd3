#ifndef KELIFC_SCHEMA_REFERENCES_H_
#define KELIFC_SCHEMA_REFERENCES_H_

#include <cstddef>
#include <new>
#include <type_traits>

#include "kelifc/core/list_of_members.h"
#include "kelifc/core/member.h"
#include "kelifc/core/references/cast_cache.h"
#include "kelifc/core/references/model.h"
#include "kelifc/core/references/postponed_work.h"
#include "kelifc/core/references/resolve.h"
#include "kelifc/core/set_of_members.h"
#include "kelifc/core/unknown.h"

// The work of the accessors of entities on references.

namespace KelIFC {

/// Returns the instance that an object of a class or select is. Returns null for null and for a
/// select that is not an instance.
template <class Type>
const IfcUnknown* UnknownOf(const Type* item) {
  if constexpr (std::is_base_of_v<IfcUnknown, Type>) {
    return item;
  } else {
    return dynamic_cast<const IfcUnknown*>(item);
  }
}

/// Returns the instance of a reference. Returns null if the reference is unset, or does not lead to
/// an instance of the class.
template <class Type>
Type* InstanceOf(MEMBER& member) {
  return const_cast<Type*>(CachedCast<Type>(member.GetInstance()));
}
template <class Type>
const Type* InstanceOf(const MEMBER& member) {
  return CachedCast<Type>(member.GetInstance());
}

/// Returns the typed view of an aggregate of `owner`, with one item for each member. An item is
/// null if the reference does not lead to an instance of the class. The view is empty without a
/// server.
template <class View, class Members>
View ViewOf(const Members& members, const IfcUnknown& owner) {
  View view;
  ResolveMemberSet(view, members, const_cast<IfcUnknown&>(owner).GetServer());
  return view;
}

/// Adds a reference to `item`. Adds nothing if the model of `owner` does not hold it.
template <class Type, class Members>
void AddMember(Members& members, const Type* item, const IfcUnknown& owner) {
  const std::size_t number = FindNumber(owner.GetServer(), UnknownOf(item));
  if (number != 0) members.Add(MEMBER(number));
}

/// Adds an instance that a host passes to an operation of `owner`. MEMBER::Embed decides who owns
/// the instance afterwards. Nothing is added for null and for an instance that `members` already
/// own. A set holds one inline value only: a second value is destroyed, or stays with the model
/// that holds it.
template <class Members>
void EmbedMember(Members& members, IfcUnknown* item, IfcUnknown& owner) {
  if (item == nullptr) return;
  for (std::size_t i = 1; i <= members.GetSize(); ++i) {
    if (members.GetItem(i).GetInlineValue() == item) return;
  }
  MEMBER member;
  member.Embed(item, owner);
  // A number needs no owner. A copy of the aggregate can outlive this owner.
  const auto number = static_cast<std::size_t>(member);
  members.Add(number == 0 ? member : MEMBER(number));
}

/// Replaces the members by references to `items`. Instances that the model does not hold are left
/// out.
template <class Members, class Items>
void ReplaceMembers(Members& members, const Items& items, const IfcUnknown& owner) {
  members.Clear();
  members.SetExists(true);
  for (std::size_t i = 1; i <= items.GetSize(); ++i) AddMember(members, items[i], owner);
}

/// Calls `add` of the instance that a reference of the relationship `source` leads to. Does nothing
/// if the class of the instance does not have that operation.
template <class Source, class Target, class Item>
void AddToTarget(Source& source, const MEMBER& reference, void (Target::*add)(Item*)) {
  IfcUnknown* const instance =
      FindInstance(source.GetServer(), static_cast<std::size_t>(reference));
  auto* const target = const_cast<Target*>(CachedCast<Target>(instance));
  if (target != nullptr) (target->*add)(&source);
}

/// Does the same for each member of an aggregate.
template <class Source, class Members, class Target, class Item>
void AddToTarget(Source& source, const Members& members, void (Target::*add)(Item*)) {
  for (std::size_t i = 1; i <= members.GetSize(); ++i) AddToTarget(source, members[i], add);
}

/// Does the same in the order of the statements. `references` is an attribute of `source`, a
/// reference or an aggregate of references.
template <class Source, class References, class Target, class Item>
void LinkBack(Source& source, const References& references, void (Target::*add)(Item*)) {
  PostponedWork::Link([&source, &references, add] { AddToTarget(source, references, add); });
}

/// Returns a new instance, or null if there is not enough memory.
template <class Type>
Type* MakeOrNull() {
  try {
    return new (std::nothrow) Type;
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

/// Returns a new instance that is registered with the server, or null if there is not enough
/// memory. If `server` is null, the caller owns the instance.
template <class Type>
Type* MakeItem(IfcServer* server) {
  Type* item = MakeOrNull<Type>();
  if (item != nullptr && server != nullptr) AddInstance(server, item);
  return item;
}

}  // namespace KelIFC

#endif  // KELIFC_SCHEMA_REFERENCES_H_
