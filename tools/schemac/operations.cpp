#include "tools/schemac/operations.h"

#include <algorithm>
#include <array>

#include "tools/schemac/attribute_text.h"
#include "tools/schemac/signatures.h"

namespace schemac {

namespace {

/// The end of the comment of a getter of an inverse attribute.
constexpr std::string_view kInverseDoc = " Inverse: setters of other instances never fill it.";

bool StartsWith(std::string_view text, std::string_view head) {
  return text.substr(0, head.size()) == head;
}

/// Writes the operations of one class.
class OperationWriter {
 public:
  OperationWriter(ResolvedClass& type, const ReleaseModel& model) : type(type), model(model) {}

  void Add(const Operation& operation) {
    if (!operation.releases.Has(model.release)) return;
    const std::size_t first = type.operations.size();
    const Verb* verb = FindVerb(operation);
    if (operation.hasSignature) {
      AddByHand(operation);
    } else if (operation.isForward) {
      AddForward(operation);
    } else if (verb != nullptr) {
      (this->*verb->add)(operation);
    } else if (!isElsewhere) {
      throw DescriptionError(operation.place, operation.name + " of " + type.entity->name +
                                                  " names no attribute and has no signature");
    }
    for (std::size_t i = first; verb != nullptr && i < type.operations.size(); ++i) {
      type.operations[i].role = verb->role;
      type.operations[i].attribute = attribute->name;
    }
  }

 private:
  using Role = ResolvedOperation::Role;

  /// The beginning of a name, and the function that adds operations with such a name.
  struct Verb {
    std::string_view head;
    void (OperationWriter::*add)(const Operation&);
    Role role;
  };
  static const std::array<Verb, 6> kVerbs;

  void AddByHand(const Operation& operation) {
    ResolvedOperation resolved = Begin(operation);
    resolved.result = ResultType(operation.result, model);
    resolved.parameters = Parameters(operation.parameters);
    const bool givesWritable =
        resolved.result.back() == '*' && !StartsWith(resolved.result, "const ");
    resolved.isConst = operation.isConst || (resolved.result != "void" && !givesWritable);
    const auto comment = type.entity->comments.find(operation.name);
    if (comment == type.entity->comments.end() && !operation.isOverride) {
      throw DescriptionError(operation.place, "no 'tell' line describes " + operation.name);
    }
    if (comment != type.entity->comments.end()) resolved.doc = comment->second;
    type.operations.push_back(std::move(resolved));
  }

  /// Adds a const operation that calls the operation with '_' before its name.
  void AddForward(const Operation& operation) {
    const std::string inner = "_" + operation.name;
    const auto& all = type.operations;
    const auto found = std::find_if(all.begin(), all.end(), [&](const ResolvedOperation& one) {
      return one.name == inner && one.parameters.empty();
    });
    if (found == all.end()) {
      throw DescriptionError(operation.place, operation.name + " forwards to " + inner +
                                                  ", which is not declared above it");
    }
    ResolvedOperation resolved = Begin(operation);
    resolved.isConst = true;
    resolved.doc = found->doc;
    resolved.result = (found->isConst ? "" : "const ") + found->result;
    resolved.body = {found->isConst
                         ? "return " + inner + "();"
                         : "return const_cast<" + type.entity->name + "*>(this)->" + inner + "();"};
    type.operations.push_back(std::move(resolved));
  }

  static ResolvedOperation Begin(const Operation& operation) {
    ResolvedOperation resolved;
    resolved.place = operation.place;
    resolved.name = operation.name;
    resolved.isVirtual = operation.isVirtual && !operation.isOverride;
    resolved.isOverride = operation.isOverride;
    resolved.isProtected = operation.name.front() == '_';
    return resolved;
  }

  /// Splits a name into a verb and an attribute. Returns null if the class does not have the
  /// attribute in this release. Sets `isElsewhere` if another release has it.
  const Verb* FindVerb(const Operation& operation) {
    isElsewhere = false;
    for (const auto& verb : kVerbs) {
      if (!StartsWith(operation.name, verb.head)) continue;
      const std::string rest = operation.attribute.empty() ? operation.name.substr(verb.head.size())
                                                           : operation.attribute;
      const std::array<std::string, 4> names = {rest, rest + "s", "Has" + rest, "Has" + rest + "s"};
      const std::size_t tried = verb.role == Role::kAdder ? names.size() : 1;
      for (std::size_t i = 0; i < tried; ++i) {
        attribute = Own(names[i]);
        if (attribute != nullptr) return &verb;
        isElsewhere |= IsDescribed(names[i]);
      }
    }
    return nullptr;
  }

  const Attribute* Own(const std::string& name) const {
    const auto& all = type.attributes;
    const auto found = std::find_if(all.begin(), all.end(), [&](const Attribute* candidate) {
      return candidate->name == name;
    });
    return found == all.end() ? nullptr : *found;
  }

  bool IsDescribed(const std::string& name) const {
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

  const KindInfo& Info() const { return InfoOf(attribute->kind); }

  /// Returns the words of the attribute. Throws if the operation returns pointers and the attribute
  /// is not narrowed to a class.
  TemplateWords Words(const Operation& operation, bool isConst) const {
    TemplateWords words = WordsOf(model, *attribute);
    if (Info().getter->isPointer && words["target"].empty()) {
      throw DescriptionError(operation.place, attribute->name + " is not narrowed to a class");
    }
    words["const"] = isConst ? "const " : "";
    return words;
  }

  /// Returns a getter in its general form, without a comment.
  ResolvedOperation GetterOf(const Operation& operation, TemplateWords& words) const {
    ResolvedOperation resolved = Begin(operation);
    resolved.result = Fill(Info().getter->result, words);
    words["result"] = resolved.result;
    resolved.body = {Fill(Info().getter->body, words)};
    return resolved;
  }

  void AddInnerGetter(const Operation& operation) {
    TemplateWords words = Words(operation, false);
    ResolvedOperation resolved = GetterOf(operation, words);
    resolved.isConst = !Info().getter->isPointer;
    resolved.doc = Fill("Returns @Name@ for derived classes, as Get@Name@ does.", words);
    type.operations.push_back(std::move(resolved));
  }

  void AddGetter(const Operation& operation) {
    if (operation.bothForms && model.release >= kFirstWithLabels) {
      AddReadingForm(operation, false);
    }
    AddReadingForm(operation, true);
  }

  void AddReadingForm(const Operation& operation, bool isConst) {
    TemplateWords words = Words(operation, isConst);
    const GetterForm& form = *Info().getter;
    ResolvedOperation resolved = GetterOf(operation, words);
    resolved.isConst = isConst;
    resolved.doc = Fill(form.doc, words);
    if (attribute->isInverse) resolved.doc += kInverseDoc;
    words["class"] = type.entity->name;
    if (form.usesInner && isConst && HasInnerGetter()) {
      resolved.body = {Fill("return const_cast<@class@*>(this)->_Get@Name@();", words)};
    }
    if (!form.isPointer && operation.isConst) {
      words["result"] = resolved.result = "const " + resolved.result + "&";
    }
    if (!attribute->absent.empty()) {
      words["absent"] = attribute->absent;
      resolved.doc = Fill("Returns @Name@, or @absent@ while it is unset.", words);
      resolved.body = {Fill("return @member@.GetExists() ? @member@ : @result@(@absent@);", words)};
    }
    type.operations.push_back(std::move(resolved));
  }

  void AddSetter(const Operation& operation) {
    const TemplateWords words = Words(operation, operation.isConst);
    const SetterForm& form = *Info().setter;
    ResolvedOperation resolved = Begin(operation);
    resolved.result = "void";
    resolved.parameters = Fill(form.parameter, words);
    resolved.doc = Fill(form.doc, words);
    resolved.body = {Fill(form.body, words)};
    type.operations.push_back(std::move(resolved));
  }

  void AddAdder(const Operation& operation) {
    if (Info().view.empty()) {
      throw DescriptionError(operation.place, attribute->name + " is not an aggregate");
    }
    const TemplateWords words = Words(operation, false);
    ResolvedOperation resolved = Begin(operation);
    resolved.result = "void";
    resolved.parameters = Fill("@target@* item", words);
    resolved.doc = Fill(
        "Adds a reference to @Name@. An instance that the model does not hold is left out.", words);
    resolved.body = {Fill("AddMember(@member@, item, *this);", words)};
    type.operations.push_back(std::move(resolved));
  }

  ResolvedClass& type;
  const ReleaseModel& model;
  // Of the operation that is being added.
  const Attribute* attribute = nullptr;
  bool isElsewhere = false;
};

const std::array<OperationWriter::Verb, 6> OperationWriter::kVerbs = {{
    {"_Get", &OperationWriter::AddInnerGetter, Role::kNone},
    {"Get", &OperationWriter::AddGetter, Role::kGetter},
    {"Set", &OperationWriter::AddSetter, Role::kSetter},
    {"Add", &OperationWriter::AddAdder, Role::kAdder},
    {"calc", &OperationWriter::AddGetter, Role::kGetter},
    {"Calc", &OperationWriter::AddGetter, Role::kGetter},
}};

}  // namespace

void ResolveOperations(ResolvedClass& type, const ReleaseModel& model) {
  OperationWriter writer(type, model);
  for (const auto& operation : type.entity->operations) writer.Add(operation);
}

}  // namespace schemac
