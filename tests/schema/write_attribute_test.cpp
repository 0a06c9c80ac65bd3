#include "kelifc/schema/write_attribute.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "kelifc/core/statement_view.h"
#include "kelifc/schema/attribute_value.h"
#include "kelifc/server/statement_text.h"

#include "tests/schema/model.h"
#include "tests/schema/records.h"

namespace KelIFC {
namespace {

using Kind = AttributeValueKind;

/// A model of 2x3 with one instance, which has the number 1.
struct Statement : Model<Release2x3> {
  explicit Statement(const std::string& text) : Model<Release2x3>({{1, text}}) {}
  IfcUnknown& Instance() { return *server.GetItem(1); }
  bool Write(std::size_t position, std::string_view text) {
    return WriteAttribute(Instance(), position, text);
  }
  AttributeValue operator[](std::size_t position) { return ReadAttribute(Instance(), position); }
};

constexpr const char* kSlab = "IFCSLAB('0123456789ABCDEFGHIJ_$',#2,'n','d','o',#3,#4,'t',.FLOOR.)";

TEST(WriteAttribute, SetsATextAndDecodesItsEscapes) {
  Statement slab(kSlab);
  EXPECT_TRUE(slab.Write(2, R"('O\'Hara, \\ (1)')"));
  EXPECT_EQ(slab[2].AsText(), R"(O'Hara, \ (1))");
  EXPECT_EQ(slab[3].AsText(), "d");
}

TEST(WriteAttribute, SetsAReferenceAnEnumeratorAndUnsetValues) {
  Statement slab(kSlab);
  EXPECT_TRUE(slab.Write(5, "#33"));
  EXPECT_TRUE(slab.Write(8, ".ROOF."));
  EXPECT_TRUE(slab.Write(3, "$"));
  EXPECT_EQ(slab[5].AsReferenceNumber(), 33U);
  EXPECT_EQ(slab[8].AsEnumerator(), "ROOF");
  EXPECT_EQ(slab[3].GetKind(), Kind::kUnset);
}

TEST(WriteAttribute, ReplacesTheElementsOfAList) {
  Statement point("IFCCARTESIANPOINT((1.,2.,3.))");
  EXPECT_TRUE(point.Write(0, "(4.5,-6)"));
  ASSERT_EQ(point[0].Size(), 2U);
  EXPECT_EQ(point[0].At(0).AsNumber(), 4.5);
  EXPECT_EQ(point[0].At(1).AsNumber(), -6.0);
}

TEST(WriteAttribute, KeepsEveryDigitOfANumber) {
  Statement circle("IFCCIRCLE(#2,1.)");
  EXPECT_TRUE(circle.Write(1, "0.30000000000000004"));
  EXPECT_EQ(circle[1].AsNumber(), 0.1 + 0.2);
}

TEST(WriteAttribute, SetsATypedValue) {
  Statement property("IFCPROPERTYSINGLEVALUE('n',$,IFCLABEL('a'),$)");
  EXPECT_TRUE(property.Write(2, "IFCINTEGER(7)"));
  ASSERT_EQ(property[2].GetKind(), Kind::kTyped);
  EXPECT_EQ(property[2].TypedValue().AsInteger(), 7);
}

TEST(WriteAttribute, ChangesNothingIfTheTextDoesNotFit) {
  Statement slab(kSlab);
  for (const char* text :
       {"", "7", "#3", "'a','b'", "'a", "'a')", "*", ".FLOOR.", "('a')", "a b"}) {
    EXPECT_FALSE(slab.Write(2, text)) << text;
    EXPECT_EQ(slab[2].AsText(), "n") << text;
  }
  EXPECT_FALSE(slab.Write(8, ".BALCONY_OF_NOBODY."));
  EXPECT_EQ(slab[8].AsEnumerator(), "FLOOR");
  EXPECT_FALSE(slab.Write(9, "'a'"));
  EXPECT_FALSE(slab.Write(static_cast<std::size_t>(-1), "'a'"));
}

TEST(WriteAttribute, KeepsATypedValueIfTheReleaseDoesNotHaveTheNewType) {
  Statement unit("IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(2.5),#2)");
  EXPECT_FALSE(unit.Write(0, "'text'"));
  ASSERT_EQ(unit[0].GetKind(), Kind::kTyped);
  EXPECT_EQ(unit[0].TypedValue().AsNumber(), 2.5);
}

TEST(WriteAttribute, ReturnsFalseForAnAttributeThatTheClassDoesNotKeep) {
  Statement history("IFCOWNERHISTORY(#2,#3,.READWRITE.,.MODIFIED.,12,#4,#5,34)");
  EXPECT_FALSE(history.Write(2, ".READONLY."));
  EXPECT_TRUE(history.Write(7, "35"));
  EXPECT_EQ(history[7].AsInteger(), 35);
}

TEST(WriteAttribute, ReplacesOneAttributeOfRawText) {
  Statement raw("IFCSOMETHINGNEW('a',#2,(1.,2.),.T.)");
  EXPECT_TRUE(raw.Write(1, "'b, (c)'"));
  EXPECT_FALSE(raw.Write(4, "1"));
  EXPECT_FALSE(raw.Write(0, "'a',2"));
  EXPECT_EQ(FormatStatement(raw.Instance()), "#1=IFCSOMETHINGNEW('a','b, (c)',(1.,2.),.T.);");
}

/// Each attribute that a class keeps, written as the statement has it, has the value of a load.
template <class Release>
void ExpectValuesOfLoad(const std::vector<SampleRecord>& records) {
  for (const SampleRecord& record : records) {
    Model<Release> model({{1, record.name + "(" + record.read + ")"}});
    IfcUnknown* const loaded = model.server.GetItem(1);
    if (loaded == nullptr || DescribeInstance(*loaded) == nullptr) continue;
    IfcUnknown* const fresh = model.server.CreateItem(loaded->GetStepName());
    if (fresh == nullptr) continue;
    const StatementView statement(record.read);
    const InstanceView view(*loaded);
    for (std::size_t i = 0; i < view.Size(); ++i) {
      const AttributeDescription* const attribute = view.Description()->AttributeAt(i);
      const AttributeValueKind kind = view[i].GetKind();
      const bool isKept = attribute != nullptr && attribute->write != nullptr;
      if (!isKept || kind == Kind::kUnset || kind == Kind::kDerived) continue;
      EXPECT_TRUE(WriteAttribute(*fresh, i, statement.GetSource(i + 1))) << record.read << ' ' << i;
      const AttributeValue written = ReadAttribute(*fresh, i);
      EXPECT_EQ(written.GetKind(), kind) << record.read << ' ' << i;
      EXPECT_EQ(written.AsText(), view[i].AsText()) << record.read << ' ' << i;
      EXPECT_EQ(written.AsNumber(), view[i].AsNumber()) << record.read << ' ' << i;
      EXPECT_EQ(written.AsEnumerator(), view[i].AsEnumerator()) << record.read << ' ' << i;
      EXPECT_EQ(written.AsReferenceNumber(), view[i].AsReferenceNumber())
          << record.read << ' ' << i;
      EXPECT_EQ(written.Size(), view[i].Size()) << record.read << ' ' << i;
    }
  }
}

TEST(WriteAttribute, SetsWhatALoadReadsIn151) {
  ExpectValuesOfLoad<Release151>(SampleRecords151());
}
TEST(WriteAttribute, SetsWhatALoadReadsIn20) { ExpectValuesOfLoad<Release20>(SampleRecords20()); }
TEST(WriteAttribute, SetsWhatALoadReadsIn2x) { ExpectValuesOfLoad<Release2x>(SampleRecords2x()); }
TEST(WriteAttribute, SetsWhatALoadReadsIn2x2) {
  ExpectValuesOfLoad<Release2x2>(SampleRecords2x2());
}
TEST(WriteAttribute, SetsWhatALoadReadsIn2x3) {
  ExpectValuesOfLoad<Release2x3>(SampleRecords2x3());
}

}  // namespace
}  // namespace KelIFC
