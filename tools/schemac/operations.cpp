#include "tools/schemac/operations.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <vector>

namespace schemac {

namespace {

/// Words of the language that an attribute can be called.
constexpr std::array<std::string_view, 2> kReservedWords = {"operator", "private"};

bool StartsWith(std::string_view text, std::string_view head) {
  return text.substr(0, head.size()) == head;
}

bool IsText(Kind kind) {
  return kind == Kind::kString || kind == Kind::kLabel || kind == Kind::kIdentifier ||
         kind == Kind::kGlobalId64 || kind == Kind::kGlobalId85;
}

/// True for values that are dear to copy.
bool HoldsMemory(Kind kind) {
  return kind == Kind::kLabels || kind == Kind::kAngle || kind == Kind::kEnumText ||
         kind == Kind::kCoordinates;
}

bool IsAggregate(Kind kind) { return kind == Kind::kSet || kind == Kind::kList; }

struct ValueWord {
  std::string_view word;
  std::string_view type;
};

/// The words of signatures for plain values.
constexpr std::array kResultWords = {
    ValueWord{"integer", "INTEGER"},    ValueWord{"real", "REAL"},
    ValueWord{"boolean", "BOOLEAN"},    ValueWord{"logical", "LOGICAL"},
    ValueWord{"string", "STRING"},      ValueWord{"measure", "IfcLengthMeasure"},
    ValueWord{"number", "std::size_t"}, ValueWord{"guid", "_GUID"},
};

constexpr std::array kParameterWords = {
    ValueWord{"integer", "INTEGER value"},     ValueWord{"real", "REAL value"},
    ValueWord{"bool", "bool value"},           ValueWord{"measure", "IfcLengthMeasure value"},
    ValueWord{"number", "std::size_t number"}, ValueWord{"index", "std::size_t index"},
    ValueWord{"text", "const char* text"},     ValueWord{"guid", "const _GUID& guid"},
};

template <class Table>
std::string_view Translate(const Table& table, std::string_view word) {
  for (const auto& row : table) {
    if (row.word == word) return row.type;
  }
  return {};
}

std::string ResultType(const std::string& described, const ReleaseModel& model) {
  if (described.empty()) return "void";
  if (const auto type = Translate(kResultWords, described); !type.empty()) {
    return std::string(type);
  }
  for (const auto& [word, aggregate] : {std::pair{"list ", "LIST<"}, std::pair{"set ", "SET<"}}) {
    if (!StartsWith(described, word)) continue;
    const std::string element = described.substr(std::string_view(word).size());
    const bool isClass = model.KnowsClass(element);
    return aggregate + (isClass ? "const " + element + "*" : ResultType(element, model)) + ">";
  }
  if (model.KnowsClass(described)) return "const " + described + "*";
  return described;
}

std::string Parameters(const std::string& described) {
  std::string parameters;
  std::size_t begin = 0;
  while (begin < described.size()) {
    const auto end = std::min(described.find(',', begin), described.size());
    std::string one = described.substr(begin, end - begin);
    one.erase(0, one.find_first_not_of(' '));
    begin = end + 1;
    if (const auto known = Translate(kParameterWords, one); !known.empty()) one = known;
    if (one.back() == '*' || one.back() == '&') one += " item";
    parameters += (parameters.empty() ? "" : ", ") + one;
  }
  return parameters;
}

/// Writes the operations of one class.
class OperationWriter {
 public:
  OperationWriter(ResolvedClass& type, const ReleaseModel& model) : type(type), model(model) {}

  void Add(const Operation& operation) {
    if (!operation.releases.Has(model.release)) return;
    if (operation.hasSignature) {
      AddByHand(operation);
      return;
    }
    if (!Split(operation)) return;
    if (verb == "_Get") {
      AddInnerGetter(operation);
    } else if (verb == "Get" || verb == "calc" || verb == "Calc") {
      AddGetter(operation);
    } else if (verb == "Set") {
      AddSetter(operation);
    } else {
      AddAdder(operation);
    }
  }

 private:
  void AddByHand(const Operation& operation) {
    ResolvedOperation resolved = Begin(operation);
    resolved.result = ResultType(operation.result, model);
    resolved.parameters = Parameters(operation.parameters);
    const bool givesWritable =
        resolved.result.back() == '*' && !StartsWith(resolved.result, "const ");
    resolved.isConst = operation.isConst || (resolved.result != "void" && !givesWritable);
    const auto comment = type.entity->comments.find(operation.name);
    if (comment == type.entity->comments.end() && !operation.isOverride) {
      throw DescriptionError(operation.place, "no line tells what " + operation.name + " does");
    }
    if (comment != type.entity->comments.end()) resolved.doc = comment->second;
    type.operations.push_back(std::move(resolved));
  }

  static ResolvedOperation Begin(const Operation& operation) {
    ResolvedOperation resolved;
    resolved.name = operation.name;
    resolved.isVirtual = operation.isVirtual && !operation.isOverride;
    resolved.isOverride = operation.isOverride;
    resolved.isProtected = operation.name.front() == '_';
    return resolved;
  }

  /// Finds verb and attribute. False if the attribute belongs to other releases only.
  bool Split(const Operation& operation) {
    for (const std::string_view head : {"_Get", "Get", "Set", "Add", "calc", "Calc"}) {
      if (!StartsWith(operation.name, head)) continue;
      verb = head;
      const std::string rest =
          operation.attribute.empty() ? operation.name.substr(head.size()) : operation.attribute;
      const std::array<std::string, 4> names = {rest, rest + "s", "Has" + rest, "Has" + rest + "s"};
      const std::size_t tried = head == "Add" ? names.size() : 1;
      bool elsewhere = false;
      for (std::size_t i = 0; i < tried; ++i) {
        attribute = Own(names[i]);
        if (attribute != nullptr) return true;
        elsewhere |= Described(names[i]);
      }
      if (elsewhere) return false;
    }
    throw DescriptionError(operation.place, operation.name + " of " + type.entity->name +
                                                " names no attribute and has no signature");
  }

  const Attribute* Own(const std::string& name) const {
    for (const Attribute* candidate : type.attributes) {
      if (candidate->name == name) return candidate;
    }
    return nullptr;
  }

  bool Described(const std::string& name) const {
    const auto& all = type.entity->attributes;
    return std::any_of(all.begin(), all.end(),
                       [&](const Attribute& candidate) { return candidate.name == name; });
  }

  bool HasInnerGetter() const {
    const auto& all = type.entity->operations;
    return std::any_of(all.begin(), all.end(), [&](const Operation& operation) {
      return operation.name == "_Get" + attribute->name && operation.releases.Has(model.release) &&
             !operation.hasSignature;
    });
  }

  std::string Target(const Operation& operation) const {
    if (attribute->kind == Kind::kValue) return "IfcValue";
    if (attribute->type.empty()) {
      throw DescriptionError(operation.place, attribute->name + " is not narrowed to a class");
    }
    return attribute->type;
  }

  std::string Member() const { return MemberName(attribute->name); }

  void AddInnerGetter(const Operation& operation) {
    ResolvedOperation resolved = Begin(operation);
    resolved.doc = attribute->name + " for derived classes, told at Get" + attribute->name + ".";
    if (IsAggregate(attribute->kind)) {
      resolved.result = Aggregate() + Target(operation) + "*>";
      resolved.body = {"return ViewOf<" + resolved.result + ">(" + Member() + ", *this);"};
    } else if (attribute->kind == Kind::kReference) {
      resolved.result = Target(operation) + "*";
      resolved.body = {"return InstanceOf<" + Target(operation) + ">(" + Member() + ");"};
    } else {
      resolved.result = StoredType(*attribute, model.release);
      resolved.isConst = true;
      resolved.body = {"return " + Member() + ";"};
    }
    type.operations.push_back(std::move(resolved));
  }

  std::string Aggregate() const { return attribute->kind == Kind::kSet ? "SET<" : "LIST<"; }

  void AddGetter(const Operation& operation) {
    if (operation.bothForms && model.release >= kFirstWithLabels) {
      AddReadingForm(operation, false);
    }
    AddReadingForm(operation, true);
  }

  void AddReadingForm(const Operation& operation, bool isConst) {
    ResolvedOperation resolved = Begin(operation);
    resolved.isConst = isConst;
    const std::string constant = isConst ? "const " : "";
    const std::string member = Member();
    if (attribute->kind == Kind::kReference || attribute->kind == Kind::kValue) {
      const std::string target = Target(operation);
      resolved.result = constant + target + "*";
      resolved.doc = attribute->name + "; null if it is unset or does not lead to an instance of " +
                     target + ".";
      resolved.body = {"return InstanceOf<" + target + ">(" + member + ");"};
      if (isConst && HasInnerGetter()) {
        resolved.body = {"return const_cast<" + type.entity->name + "*>(this)->_Get" +
                         attribute->name + "();"};
      }
    } else if (IsAggregate(attribute->kind)) {
      const std::string target = Target(operation);
      const std::string element = constant + target + "*";
      resolved.result = Aggregate() + element + ">";
      resolved.doc = "The instances of " + attribute->name +
                     ", as many as it has members; null for one that is no " + target + ".";
      resolved.body = {"return ViewOf<" + resolved.result + ">(" + member + ", *this);"};
    } else {
      resolved.result = StoredType(*attribute, model.release);
      if (operation.isConst) resolved.result = "const " + resolved.result + "&";
      resolved.doc =
          attribute->name + (attribute->kind == Kind::kEnum ? "." : ", unset if absent.");
      resolved.body = {"return " + member + ";"};
      if (!attribute->absent.empty()) {
        resolved.doc = attribute->name + "; " + attribute->absent + " while it is unset.";
        resolved.body = {"return " + member + ".GetExists() ? " + member + " : " + resolved.result +
                         "(" + attribute->absent + ");"};
      }
    }
    type.operations.push_back(std::move(resolved));
  }

  void AddSetter(const Operation& operation) {
    ResolvedOperation resolved = Begin(operation);
    resolved.result = "void";
    const std::string member = Member();
    resolved.doc = "Sets " + attribute->name + ".";
    if (attribute->kind == Kind::kReference) {
      resolved.parameters = (operation.isConst ? "const " : "") + Target(operation) + "* item";
      resolved.doc = "Refers " + attribute->name +
                     " to an instance of the model; null or one that the model does not hold "
                     "makes it unset.";
      resolved.body = {member + ".SetReference(UnknownOf(item));"};
    } else if (attribute->kind == Kind::kValue) {
      resolved.parameters = "IfcValue* item";
      resolved.doc = "Sets " + attribute->name +
                     " to an inline value. A value that is registered in a model stays the "
                     "model's; any other value belongs to this instance. The value that was set "
                     "before belongs to the caller again.";
      resolved.body = {member + " = item;"};
    } else if (IsAggregate(attribute->kind)) {
      resolved.parameters = "const " + Aggregate() + Target(operation) + "*>& items";
      resolved.doc = "Replaces " + attribute->name + "; what the model does not hold is left out.";
      resolved.body = {"ReplaceMembers(" + member + ", items, *this);"};
    } else if (IsText(attribute->kind)) {
      resolved.parameters = "const char* text";
      resolved.doc = "Sets " + attribute->name + "; null makes it unset.";
      resolved.body = {member + " = text;"};
    } else {
      const std::string stored = StoredType(*attribute, model.release);
      resolved.parameters = attribute->kind == Kind::kBoolean ? "bool value"
                            : HoldsMemory(attribute->kind)    ? "const " + stored + "& value"
                                                              : stored + " value";
      resolved.body = {member + " = " +
                       (attribute->kind == Kind::kBoolean ? "BOOLEAN(value);" : "value;")};
    }
    type.operations.push_back(std::move(resolved));
  }

  void AddAdder(const Operation& operation) {
    if (!IsAggregate(attribute->kind)) {
      throw DescriptionError(operation.place, attribute->name + " is no aggregate");
    }
    ResolvedOperation resolved = Begin(operation);
    resolved.result = "void";
    resolved.parameters = Target(operation) + "* item";
    resolved.doc =
        "Adds a reference to " + attribute->name + "; what the model does not hold is left out.";
    resolved.body = {"AddMember(" + Member() + ", item, *this);"};
    type.operations.push_back(std::move(resolved));
  }

  ResolvedClass& type;
  const ReleaseModel& model;
  std::string_view verb;
  const Attribute* attribute = nullptr;
};

}  // namespace

const Attribute* FindAttribute(const ReleaseModel& model, const ResolvedClass& type,
                               std::string_view name) {
  for (const Attribute* attribute : type.attributes) {
    if (attribute->name == name) return attribute;
  }
  for (const auto& base : type.bases) {
    const ResolvedClass* other = model.Find(base);
    if (other == nullptr) continue;
    if (const Attribute* found = FindAttribute(model, *other, name)) return found;
  }
  return nullptr;
}

std::string ValueType(Kind kind, std::size_t release) {
  const bool hasLabels = release >= kFirstWithLabels;
  switch (kind) {
    case Kind::kString:
    case Kind::kGlobalId64:
    case Kind::kGlobalId85:
      return "STRING";
    case Kind::kLabel:
      return hasLabels ? "IfcLabel" : "STRING";
    case Kind::kIdentifier:
      return hasLabels ? "IfcIdentifier" : "STRING";
    case Kind::kReal:
    case Kind::kScientific:
      return "REAL";
    case Kind::kInteger:
      return "INTEGER";
    case Kind::kBoolean:
      return "BOOLEAN";
    case Kind::kLogical:
      return "LOGICAL";
    case Kind::kMeasure:
      return "IfcLengthMeasure";
    case Kind::kCoordinates:
      return "COORDINATES";
    case Kind::kAngle:
      return "IfcCompoundPlaneAngleMeasure";
    case Kind::kFlags:
      return "BINARY<2>";
    case Kind::kIntegers:
      return "LIST<INTEGER>";
    case Kind::kEnum:
    case Kind::kEnumText:
      return "ENUM";
    case Kind::kLabels:
      return hasLabels ? "LIST<IfcLabel>" : "LIST<STRING>";
    case Kind::kReference:
    case Kind::kValue:
      return "MEMBER";
    case Kind::kSet:
      return "SET_OF_MEMBERS";
    case Kind::kList:
      return "LIST_OF_MEMBERS";
    case Kind::kInstance:
      return {};
  }
  return {};
}

std::string StoredType(const Attribute& attribute, std::size_t release) {
  const bool isNamed = attribute.kind == Kind::kEnum || attribute.kind == Kind::kInstance ||
                       (attribute.kind == Kind::kEnumText && !attribute.type.empty());
  return isNamed ? attribute.type : ValueType(attribute.kind, release);
}

std::string MemberName(const std::string& attribute) {
  std::string name = attribute;
  name[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(name[0])));
  const bool isReserved =
      std::find(kReservedWords.begin(), kReservedWords.end(), name) != kReservedWords.end();
  return isReserved ? name + "Value" : name;
}

void ResolveOperations(ResolvedClass& type, const ReleaseModel& model) {
  OperationWriter writer(type, model);
  for (const auto& operation : type.entity->operations) writer.Add(operation);
}

}  // namespace schemac
