#include <map>

#include "tools/schemac/emitters.h"
#include "tools/schemac/operations.h"

namespace schemac {

namespace {

constexpr std::string_view kSampleId64 = "'0123456789ABCDEFGHIJ_$'";
constexpr std::string_view kSampleId85 = "'0123456789ABCDEFGHIJ'";

/// A value as a file has it, as it is written again, and as it is written while it is unset.
struct Sample {
  std::string read;
  std::string written;
  std::string unset = "$";
};

/// Makes the sample record of one class: every position set, from the chain of its bases down.
class RecordWriter {
 public:
  explicit RecordWriter(const ReleaseModel& model) : model(model) {}

  /// False if a class of the chain reads or writes by hand.
  bool Run(const ResolvedClass& type) {
    return AddReads(type.hasParse ? type.entity->name : type.readBase) &&
           AddWrites(type.hasWrite ? type.entity->name : type.writeBase);
  }

  std::string read;     ///< the positions of a file's record
  std::string unset;    ///< the same with `$` everywhere but in the identifier
  std::string written;  ///< what `read` is written as
  std::string emptied;  ///< what `unset` is written as

 private:
  static void Append(std::string& record, const std::string& position) {
    record += (record.empty() ? "" : ",") + position;
  }

  bool AddReads(const std::string& name) {
    const ResolvedClass* type = model.Find(name);
    if (type == nullptr) return true;
    if (type->customParse || !AddReads(type->readBase)) return false;
    for (const auto& step : type->reads) {
      if (step.act == Step::Act::kLink) continue;
      Sample sample;
      if (step.act == Step::Act::kStar) {
        sample = {"*", "*", "*"};
      } else if (step.act == Step::Act::kDrop) {
        Attribute dropped;
        dropped.kind = step.kind;
        sample = MakeSample(dropped);
      } else {
        sample = MakeSample(*FindAttribute(model, *type, step.name));
        samples[step.name] = sample;
      }
      Append(read, sample.read);
      Append(unset, sample.read == kSampleId64 || sample.read == kSampleId85 ? sample.read
                    : step.act == Step::Act::kStar                           ? "*"
                                                                             : "$");
    }
    return true;
  }

  bool AddWrites(const std::string& name) {
    const ResolvedClass* type = model.Find(name);
    if (type == nullptr) return true;
    if (type->customWrite || !AddWrites(type->writeBase)) return false;
    for (const auto& step : type->writes) {
      if (step.act == Step::Act::kStar) {
        AddWritten("*", "*");
      } else if (step.act != Step::Act::kAttribute) {
        AddWritten(step.literal, step.literal);
      } else {
        const Attribute& attribute = *FindAttribute(model, *type, step.name);
        const auto known = samples.find(step.name);
        Sample sample = known == samples.end() ? MakeSample(attribute) : known->second;
        if (known == samples.end()) sample.written = sample.unset;
        if (!attribute.writtenAs.empty()) sample.written = sample.unset = attribute.writtenAs;
        AddWritten(sample.written, sample.unset);
      }
    }
    return true;
  }

  void AddWritten(const std::string& full, const std::string& empty) {
    Append(written, full);
    Append(emptied, empty);
  }

  Sample MakeSample(const Attribute& attribute) {
    const std::string n = std::to_string(++count);
    switch (attribute.kind) {
      case Kind::kString:
      case Kind::kLabel:
      case Kind::kIdentifier:
        return Same("'text " + n + "'");
      case Kind::kGlobalId64:
        return {std::string(kSampleId64), std::string(kSampleId64), std::string(kSampleId64)};
      case Kind::kGlobalId85:
        return {std::string(kSampleId85), std::string(kSampleId85), std::string(kSampleId85)};
      case Kind::kReal:
      case Kind::kMeasure:
        return Same(n + ".5");
      case Kind::kInteger:
        return Same(n);
      case Kind::kBoolean:
        return Same(".T.");
      case Kind::kLogical:
        return Same(".U.");
      case Kind::kScientific:
        return {"0.0012", "1.2E-03", "0.0E+00"};
      case Kind::kCoordinates:
        return {"(1.,2.5)", "(1.,2.5)", "()"};
      case Kind::kAngle:
        return {"(49,6,-12)", "(49, 6, -12)", "$"};
      case Kind::kFlags:
        return Same("\\\"10\\\"");
      case Kind::kLabels:
        return {"('a,b','c)')", "('a,b', 'c)')", "$"};
      case Kind::kReference:
        return Same("#90" + n);
      case Kind::kSet:
        return {"(#90" + n + ",#91" + n + ")", "(#90" + n + ", #91" + n + ")", "()"};
      case Kind::kList:
        return {"(#90" + n + ",#91" + n + ")", "(#90" + n + ", #91" + n + ")", "$"};
      case Kind::kValue:
        return Same("IFCLENGTHMEASURE(" + n + ".5)");
      case Kind::kEnum:
        return EnumSample(attribute);
      case Kind::kEnumText:
        return Same(".SAMPLE.");
      case Kind::kIntegers:
      case Kind::kInstance:
        return Same("$");
    }
    return {};
  }

  static Sample Same(const std::string& text) { return {text, text, "$"}; }

  /// The last row, and for an unset one the row of the value that an attribute starts with.
  Sample EnumSample(const Attribute& attribute) const {
    if (attribute.type.empty()) return Same(".SAMPLE.");
    const Enumeration& enumeration = *model.enumerations.at(attribute.type);
    const EnumTable& table =
        enumeration.isCore ? enumeration.tables.front() : *FindTable(enumeration, model.release);
    Sample sample = Same("." + table.rows.back().first + ".");
    for (const auto& [text, value] : table.rows) {
      const bool isInitial = attribute.initial.empty() ? value == 0 : text == attribute.initial;
      if (isInitial) sample.unset = "." + text + ".";
    }
    return sample;
  }

  const ReleaseModel& model;
  std::map<std::string, Sample> samples;
  int count = 0;
};

}  // namespace

void EmitRecords(const ReleaseModel& model, Files& files) {
  const ReleaseInfo& info = kReleases[model.release];
  TextWriter out;
  out.Line(GeneratedBy("the descriptions in kelifc/schema"));
  out.Line("#include \"tests/schema/records.h\"");
  out.Line();
  out.Line("namespace KelIFC {");
  out.Line();
  out.Line("const std::vector<SampleRecord>& SampleRecords" + std::string(info.suffix) + "() {");
  out.Line("  static const std::vector<SampleRecord> records = {");
  for (const auto& type : model.classes) {
    const Entity& entity = *type.entity;
    if (!type.isUnknown || !entity.file.Has(model.release)) continue;
    RecordWriter record(model);
    if (!record.Run(type)) continue;
    out.Line("      {\"" + entity.name + "\",");
    out.Line("       \"" + record.read + "\", \"" + record.written + "\",");
    out.Line("       \"" + record.unset + "\", \"" + record.emptied + "\"},");
  }
  out.Line("  };");
  out.Line("  return records;");
  out.Line("}");
  out.Line();
  out.Line("}  // namespace KelIFC");
  files["tests/schema/records_" + std::string(info.folder) + ".cpp"] = out.Text();
}

}  // namespace schemac
