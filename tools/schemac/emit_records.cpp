#include <map>

#include "tools/schemac/emitters.h"

namespace schemac {

namespace {

constexpr std::string_view kRecordsFile = R"(@generated@
#include "tests/schema/records.h"

namespace KelIFC {

const std::vector<SampleRecord>& SampleRecords@suffix@() {
  static const std::vector<SampleRecord> records = {
@records@  };
  return records;
}

}  // namespace KelIFC
)";

constexpr std::string_view kRecord = R"(      {"@name@",
       "@read@", "@written@",
       "@absent@", "@emptied@"},
)";

/// The texts of one position.
struct Sample {
  std::string read;     ///< as a file has it
  std::string written;  ///< as a save writes it
  std::string absent;   ///< as a file has it if it is unset
  std::string emptied;  ///< as a save writes the unset value
};

/// Makes the sample record of one class. All positions are set, those of the bases too.
class RecordWriter {
 public:
  explicit RecordWriter(const ReleaseModel& model) : model(model) {}

  /// Returns false if Parse or Write of the class or of a base is written by hand.
  bool Run(const ResolvedClass& type) {
    return AddReads(type.hasParse ? type.entity->name : type.readBase) &&
           AddWrites(type.hasWrite ? type.entity->name : type.writeBase);
  }

  Sample record;  ///< the positions between the parentheses

 private:
  static void Append(std::string& positions, const std::string& position) {
    positions += (positions.empty() ? "" : ",") + position;
  }

  bool AddReads(const std::string& name) {
    const ResolvedClass* type = model.Find(name);
    if (type == nullptr) return true;
    if (type->customParse || !AddReads(type->readBase)) return false;
    for (const auto& step : type->reads) {
      if (step.act == Step::Act::kLink) continue;
      const Sample sample = ReadSample(*type, step);
      Append(record.read, sample.read);
      Append(record.absent, sample.absent);
    }
    return true;
  }

  Sample ReadSample(const ResolvedClass& type, const Step& step) {
    if (step.act == Step::Act::kStar) return {"*", "*", "*", "*"};
    if (step.act == Step::Act::kDrop) {
      Attribute dropped;
      dropped.kind = *step.kind;
      return MakeSample(dropped);
    }
    return samples[step.name] = MakeSample(*model.FindAttribute(type, step.name));
  }

  bool AddWrites(const std::string& name) {
    const ResolvedClass* type = model.Find(name);
    if (type == nullptr) return true;
    if (type->customWrite || !AddWrites(type->writeBase)) return false;
    for (const auto& step : type->writes) {
      const Sample sample = WriteSample(*type, step);
      Append(record.written, sample.written);
      Append(record.emptied, sample.emptied);
    }
    return true;
  }

  Sample WriteSample(const ResolvedClass& type, const Step& step) {
    if (step.act == Step::Act::kStar) return {"", "*", "", "*"};
    if (step.act != Step::Act::kAttribute) return {"", step.literal, "", step.literal};
    const Attribute& attribute = *model.FindAttribute(type, step.name);
    if (!attribute.writtenAs.empty()) return {"", attribute.writtenAs, "", attribute.writtenAs};
    const auto known = samples.find(step.name);
    if (known != samples.end()) return known->second;
    Sample unread = MakeSample(attribute);
    unread.written = unread.emptied;
    return unread;
  }

  Sample MakeSample(const Attribute& attribute) {
    const SampleTexts& texts = InfoOf(attribute.kind).sample;
    TemplateWords words = {{"n", std::to_string(++count)}, {"row", "SAMPLE"}, {"emptied", "$"}};
    if (attribute.kind == Kind::kEnum && !attribute.type.empty()) AddRows(attribute, words);
    return {Fill(texts.read, words),
            Fill(texts.written.empty() ? texts.read : texts.written, words),
            Fill(texts.absent, words), Fill(texts.emptied, words)};
  }

  /// Adds the last row, and for an unset attribute the row of its initial value.
  void AddRows(const Attribute& attribute, TemplateWords& words) const {
    const EnumTable& table = *model.FindTable(*model.enumerations.at(attribute.type));
    words["row"] = table.rows.back().first;
    for (const auto& [text, value] : table.rows) {
      const bool isInitial = attribute.initial.empty() ? value == 0 : text == attribute.initial;
      if (isInitial) words["emptied"] = "." + text + ".";
    }
  }

  const ReleaseModel& model;
  std::map<std::string, Sample> samples;
  int count = 0;
};

}  // namespace

void EmitRecords(const ReleaseModel& model, Files& files) {
  TextWriter records;
  for (const auto& type : model.classes) {
    const Entity& entity = *type.entity;
    if (!type.isUnknown || !entity.file.Has(model.release)) continue;
    RecordWriter writer(model);
    if (!writer.Run(type)) continue;
    records.Fill(kRecord, {{"name", entity.name},
                           {"read", writer.record.read},
                           {"written", writer.record.written},
                           {"absent", writer.record.absent},
                           {"emptied", writer.record.emptied}});
  }
  TemplateWords words = WordsOf(kReleases[model.release]);
  words["generated"] = GeneratedBy("the descriptions in kelifc/schema");
  words["records"] = records.Text();
  files[Fill("tests/schema/records_@folder@.cpp", words)] = Fill(kRecordsFile, words);
}

}  // namespace schemac
