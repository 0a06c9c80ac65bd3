#include <algorithm>
#include <cctype>

#include "tools/schemac/emitters.h"
#include "tools/schemac/entity_rows.h"

namespace schemac {

namespace {

constexpr std::string_view kFile = R"(@generated@
#include "kelifc/schema/@folder@.h"
#include "kelifc/schema/entity_tables.h"
#include "kelifc/schema/value_reader.h"
#include "kelifc/schema/value_writer.h"

namespace KelIFC {

@members@namespace {

@entities@constexpr const EntityDescription* kEntities[] = {
@names@};

const EntityType kTypes[] = {
@types@};

}  // namespace

constinit const EntityTables kTables@suffix@ = {{kEntities, @count@}, kTypes};

}  // namespace KelIFC
)";

constexpr std::string_view kAttribute =
    R"(    {.name = "@name@"@fields@,
     .kind = AttributeKind::@kind@,
     .use = AttributeUse::@use@},
)";

constexpr std::string_view kInverse =
    R"(    {.name = "@name@", .entity = "@entity@", .attribute = "@attribute@"},
)";

constexpr std::string_view kMembers = R"(template <>
struct Kept<@class@> : @class@ {
@pointers@};

)";

constexpr std::string_view kPointer = "  static constexpr auto @pointer@ = &Kept::@member@;\n";

constexpr std::string_view kType = "    {&typeid(@class@), &k@name@},\n";

/// Fields that are empty or false are left out.
constexpr std::string_view kEntity =
    R"(@attributes@@inverses@constexpr EntityDescription k@name@ = {
    .name = "@name@",
    .form = EntityForm::@form@@fields@};

)";

/// Collects the fields of an initializer that differ from their default.
class Fields {
 public:
  explicit Fields(std::string separator) : separator(std::move(separator)) {}

  void Add(const std::string& name, const std::string& value) {
    if (!value.empty()) text += separator + "." + name + " = " + value;
  }
  void AddText(const std::string& name, const std::string& value) {
    if (!value.empty()) Add(name, "\"" + value + "\"");
  }
  void AddFlag(const std::string& name, bool value) {
    if (value) Add(name, "true");
  }

  std::string text;

 private:
  std::string separator;
};

std::string AttributeText(const AttributeRow& row) {
  Fields fields(",\n     ");
  fields.AddText("getter", row.getter);
  fields.AddText("setter", row.setter);
  fields.AddText("type", row.type);
  if (row.position != AttributeRow::kNoPosition) {
    fields.Add("position", std::to_string(row.position));
  }
  std::string text =
      Fill(kAttribute,
           {{"name", row.name}, {"fields", fields.text}, {"kind", row.kind}, {"use", row.use}});
  Fields flags(",\n     ");
  flags.AddFlag("isRequired", row.isRequired);
  flags.AddFlag("isWritten", row.isWritten);
  flags.Add("read", row.reader);
  flags.Add("write", row.setting);
  return text.insert(text.rfind('}'), flags.text);
}

std::string InverseText(const InverseRow& row) {
  return Fill(kInverse, {{"name", row.name}, {"entity", row.entity}, {"attribute", row.attribute}});
}

/// Returns the definition of an array of rows, or an empty text if there are none.
template <class Row>
std::string ArrayText(const std::string& type, const std::string& name,
                      const std::vector<Row>& rows, std::string (*textOf)(const Row&)) {
  if (rows.empty()) return {};
  std::string text = "constexpr " + type + " " + name + "[] = {\n";
  for (const Row& row : rows) text += textOf(row);
  return text + "};\n";
}

std::string EntityText(const EntityRow& row) {
  const std::string attributes = ArrayText("AttributeDescription", "k" + row.name + "Attributes",
                                           row.attributes, &AttributeText);
  const std::string inverses =
      ArrayText("InverseAttribute", "k" + row.name + "Inverses", row.inverses, &InverseText);
  std::string bases;
  for (const auto& base : row.bases) bases += (bases.empty() ? "&k" : ", &k") + base;
  Fields fields(",\n    ");
  fields.AddFlag("isInFile", row.isInFile);
  if (!row.valueKind.empty()) fields.Add("valueKind", "AttributeKind::" + row.valueKind);
  fields.Add("readValue", row.valueReader);
  if (!bases.empty()) fields.Add("bases", "{" + bases + "}");
  if (!row.record.empty()) fields.Add("record", "&k" + row.record);
  if (!attributes.empty()) {
    fields.Add("attributes", "k" + row.name + "Attributes");
    fields.Add("attributeCount", std::to_string(row.attributes.size()));
  }
  if (row.positionCount != 0) fields.Add("positionCount", std::to_string(row.positionCount));
  if (!inverses.empty()) {
    fields.Add("inverses", "k" + row.name + "Inverses");
    fields.Add("inverseCount", std::to_string(row.inverses.size()));
  }
  return Fill(kEntity, {{"attributes", attributes},
                        {"inverses", inverses},
                        {"name", row.name},
                        {"form", row.form},
                        {"fields", fields.text}});
}

bool IsBefore(const std::string& a, const std::string& b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return std::toupper(static_cast<unsigned char>(x)) <
           std::toupper(static_cast<unsigned char>(y));
  });
}

/// Returns the pointers to the members that a class keeps, or an empty text if there are none.
std::string MembersText(const EntityRow& row) {
  TextWriter pointers;
  for (const auto& attribute : row.attributes) {
    if (attribute.pointer.empty()) continue;
    pointers.Fill(kPointer, {{"pointer", attribute.pointer}, {"member", attribute.member}});
  }
  if (pointers.Text().empty()) return {};
  return Fill(kMembers, {{"class", row.type}, {"pointers", pointers.Text()}});
}

std::string NamesText(std::vector<std::string> names) {
  std::sort(names.begin(), names.end(), IsBefore);
  TextWriter list;
  for (const auto& name : names) list.Line("    &k" + name + ",");
  return list.Text();
}

}  // namespace

void EmitAttributes(const ReleaseModel& model, Files& files) {
  TemplateWords words = WordsOf(kReleases[model.release]);
  words["generated"] = GeneratedBy("the descriptions in kelifc/schema");
  std::vector<std::string> names;
  for (const auto& row : EntityRows(model)) {
    words["members"] += MembersText(row);
    words["entities"] += EntityText(row);
    if (row.isInstantiable)
      words["types"] += Fill(kType, {{"class", row.type}, {"name", row.name}});
    names.push_back(row.name);
  }
  words["names"] = NamesText(names);
  words["count"] = std::to_string(names.size());
  files[Fill("kelifc/schema/@folder@/attributes.cpp", words)] = Fill(kFile, words);
}

}  // namespace schemac
