#include "tools/schemac/resolver.h"

#include <algorithm>
#include <iterator>
#include <sstream>

#include "tools/schemac/core_classes.h"
#include "tools/schemac/operations.h"

namespace schemac {

namespace {

std::vector<std::string> Words(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> words;
  for (std::string word; in >> word;) {
    if (word.back() == ',') word.pop_back();
    if (!word.empty()) words.push_back(word);
  }
  return words;
}

/// Returns the last text that applies to the release, or null if none does.
const Marked* LastFor(const std::vector<Marked>& pieces, std::size_t release) {
  const auto last = std::find_if(pieces.rbegin(), pieces.rend(),
                                 [&](const Marked& piece) { return piece.releases.Has(release); });
  return last == pieces.rend() ? nullptr : &*last;
}

/// Builds the model of one release from the description.
class Resolver {
 public:
  Resolver(const Description& description, std::size_t release)
      : description(description), release(release) {
    model.release = release;
  }

  ReleaseModel Run() {
    CollectNames();
    for (auto& type : model.classes) ResolveShape(type);
    for (auto& type : model.classes) ResolveRecord(type);
    for (auto& type : model.classes) {
      CheckTypes(type);
      ResolveOperations(type, model);
    }
    return std::move(model);
  }

 private:
  void CollectNames() {
    for (const auto& enumeration : description.enumerations) {
      if (model.FindTable(enumeration) != nullptr) AddUnique(model.enumerations, enumeration);
    }
    for (const auto& type : description.definedTypes) {
      if (type.releases.Has(release)) AddUnique(model.definedTypes, type);
    }
    for (const auto& entity : description.entities) {
      if (!entity.releases.Has(release)) continue;
      const bool isNew = model.indexOf.emplace(entity.name, model.classes.size()).second;
      if (!isNew || FindCoreClass(entity.name) != nullptr) {
        throw DescriptionError(entity.place, entity.name + " is described twice");
      }
      ResolvedClass type;
      type.entity = &entity;
      model.classes.push_back(std::move(type));
    }
    for (const auto& function : description.functions) {
      if (function.releases.Has(release)) model.functions.push_back({&function, {}, {}});
    }
  }

  template <class Entry>
  static void AddUnique(std::map<std::string, const Entry*, std::less<>>& map, const Entry& entry) {
    if (!map.emplace(entry.name, &entry).second) {
      throw DescriptionError(entry.place, entry.name + " is described twice");
    }
  }

  void ResolveShape(ResolvedClass& type) {
    const Entity& entity = *type.entity;
    if (entity.doc.empty()) throw DescriptionError(entity.place, entity.name + " has no doc line");
    if (const Marked* bases = LastFor(entity.bases, release)) type.bases = Words(bases->text);
    for (const auto& base : type.bases) {
      if (!model.KnowsClass(base)) {
        throw DescriptionError(entity.place, "the base " + base + " is not described");
      }
      const auto at = model.indexOf.find(base);
      const bool isLater = at != model.indexOf.end() && at->second >= model.indexOf[entity.name];
      if (isLater)
        throw DescriptionError(entity.place, "the base " + base + " is described after it");
      if (const CoreClass* core = FindCoreClass(base)) type.isUnknown |= core->isUnknown;
      if (const ResolvedClass* other = model.Find(base)) type.isUnknown |= other->isUnknown;
    }
    for (const auto& attribute : entity.attributes) {
      if (attribute.releases.Has(release)) type.attributes.push_back(&attribute);
    }
    for (const auto& piece : entity.constructors) {
      if (piece.releases.Has(release)) type.constructors.push_back({piece.text, piece.place, {}});
    }
    for (const auto& piece : entity.departures) {
      if (piece.releases.Has(release)) type.departures.push_back(piece.text);
    }
  }

  /// Bases come before the classes that derive from them, so the bases are already resolved.
  void ResolveRecord(ResolvedClass& type) {
    const Entity& entity = *type.entity;
    for (const auto& step : entity.steps) {
      if (!step.releases.Has(release)) continue;
      if (step.act != Step::Act::kLink) type.positions.push_back(step);
      if (IsWritten(step)) type.writes.push_back(step);
      if (IsRead(step)) type.reads.push_back(step);
    }
    for (const auto& order : entity.orders) {
      if (order.releases.Has(release)) ApplyOrder(type, order);
    }
    for (const auto& step : type.reads) CheckStep(type, step);
    ResolveChain(type);
  }

  static bool IsRead(const Step& step) {
    return step.act != Step::Act::kLiteral && step.act != Step::Act::kUnread;
  }

  static bool IsWritten(const Step& step) {
    return step.act != Step::Act::kLink && step.act != Step::Act::kUnread;
  }

  void ApplyOrder(ResolvedClass& type, const RecordOrder& order) const {
    std::vector<Step> steps;
    for (const auto& item : order.items) steps.push_back(StepOf(type, item));
    if (order.forReading) {
      // The steps that fill inverse sets come after the positions.
      std::vector<Step> reads;
      std::copy_if(steps.begin(), steps.end(), std::back_inserter(reads), IsRead);
      std::copy_if(type.reads.begin(), type.reads.end(), std::back_inserter(reads),
                   [](const Step& step) { return step.act == Step::Act::kLink; });
      type.reads = std::move(reads);
    }
    if (order.forWriting) {
      type.writes.clear();
      std::copy_if(steps.begin(), steps.end(), std::back_inserter(type.writes), IsWritten);
      type.positions = std::move(steps);
    }
  }

  /// Returns the step of an item. The item is a position that the body describes, or an attribute
  /// of the class or of a base.
  Step StepOf(const ResolvedClass& type, const OrderItem& item) const {
    Step step;
    step.place = item.place;
    step.name = item.name;
    step.act = item.isStar ? Step::Act::kStar : Step::Act::kAttribute;
    if (item.isStar) return step;
    for (const auto& described : type.entity->steps) {
      const bool isPosition =
          described.act != Step::Act::kLink && described.act != Step::Act::kStar;
      if (isPosition && described.name == item.name && described.releases.Has(release)) {
        return described;
      }
    }
    CheckStep(type, step);
    return step;
  }

  void ResolveChain(ResolvedClass& type) const {
    const Entity& entity = *type.entity;
    if (const Marked* parse = LastFor(entity.customParse, release)) {
      type.customParse = HandWritten{"", parse->place, {}};
    }
    if (const Marked* write = LastFor(entity.customWrite, release)) {
      type.customWrite = HandWritten{"", write->place, {}};
    }
    type.hasParse = type.customParse || (!type.reads.empty() && !entity.noParse.Has(release));
    type.hasWrite = type.customWrite || (!type.writes.empty() && !entity.noWrite.Has(release));
    type.readBase = Ancestor(type, [](const ResolvedClass& base) { return base.hasParse; });
    type.writeBase = Ancestor(type, [](const ResolvedClass& base) { return base.hasWrite; });
    type.recordBase =
        Ancestor(type, [](const ResolvedClass& base) { return !base.positions.empty(); });
    if (const Marked* chain = LastFor(entity.chains, release)) {
      type.readBase = type.writeBase = type.recordBase = chain->text;
    }
    const bool isReachable = entity.file.Has(release) || entity.made.Has(release);
    if (isReachable && !type.hasParse && type.readBase == kRoot) ForwardToRoot(type);
  }

  /// A class that can have instances must read and write, even if it has no attributes.
  static void ForwardToRoot(ResolvedClass& type) {
    type.hasParse = true;
    type.reads.clear();
  }

  void CheckStep(const ResolvedClass& type, const Step& step) const {
    if (step.act == Step::Act::kLink && !model.KnowsClass(step.target)) {
      throw DescriptionError(step.place, "the class " + step.target + " is not described");
    }
    const bool namesAttribute = step.act == Step::Act::kAttribute || step.act == Step::Act::kLink;
    if (namesAttribute && model.FindAttribute(type, step.name) == nullptr) {
      throw DescriptionError(step.place, "no attribute " + step.name + " in this release");
    }
  }

  /// Returns the nearest base that is an instance and for which `isWanted` is true.
  template <class IsWanted>
  std::string Ancestor(const ResolvedClass& type, IsWanted isWanted) const {
    for (const auto& base : type.bases) {
      if (const CoreClass* core = FindCoreClass(base)) {
        if (core->hasParse) return base;
        continue;
      }
      const ResolvedClass* other = model.Find(base);
      if (other == nullptr || !other->isUnknown) continue;
      return isWanted(*other) ? base : Ancestor(*other, isWanted);
    }
    return std::string(kRoot);
  }

  void CheckTypes(const ResolvedClass& type) const {
    for (const Attribute* attribute : type.attributes) {
      if (attribute->type.empty()) continue;
      const bool known = InfoOf(attribute->kind).namesEnumeration
                             ? model.enumerations.count(attribute->type) != 0
                             : model.KnowsClass(attribute->type);
      if (!known) {
        throw DescriptionError(attribute->place, attribute->type + " is not described in release " +
                                                     std::string(kReleases[release].mark));
      }
    }
  }

  const Description& description;
  std::size_t release;
  ReleaseModel model;
};

}  // namespace

ReleaseModel Resolve(const Description& description, std::size_t release) {
  return Resolver(description, release).Run();
}

}  // namespace schemac
