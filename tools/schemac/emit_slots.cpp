#include "tools/schemac/emitters.h"

namespace schemac {

namespace {

constexpr std::string_view kSlotsHead = R"(@generated@
#include "kelifc/schema/@folder@.h"
#include "tests/schema/slot_order.h"

namespace @namespace@ {
namespace {

)";

constexpr std::string_view kSlotsTail = R"(}  // namespace
}  // namespace @namespace@
)";

/// A class that derives from the tested class takes the pointers, because it has access to
/// protected operations.
constexpr std::string_view kSlotsClass = R"(struct @name@Slots : @name@ {
@uses@  static std::vector<std::ptrdiff_t> Read() {
    return {
@slots@    };
  }
};

TEST(SlotOrder@suffix@, Of@name@IsAsDescribed) { ExpectRising(@name@Slots::Read()); }

)";

constexpr std::string_view kSlot =
    R"(        SlotOf(static_cast<@result@ (@name@::*)(@parameters@)@const@>(&@name@Slots::@operation@)),
)";

void EmitClassSlots(TextWriter& out, const ReleaseModel& model, const ResolvedClass& type) {
  TemplateWords words = WordsOf(kReleases[model.release]);
  words["name"] = type.entity->name;
  TextWriter uses;
  TextWriter slots;
  std::size_t count = 0;
  for (const auto& operation : type.operations) {
    if (!operation.isVirtual) continue;
    ++count;
    words["result"] = operation.result;
    words["parameters"] = operation.parameters;
    words["const"] = operation.isConst ? " const" : "";
    words["operation"] = operation.name;
    if (operation.isProtected) uses.Fill("  using @name@::@operation@;\n", words);
    slots.Fill(kSlot, words);
  }
  if (count < 2) return;
  words["uses"] = uses.Text();
  words["slots"] = slots.Text();
  out.Fill(kSlotsClass, words);
}

}  // namespace

void EmitSlots(const std::vector<ReleaseModel>& models, Files& files) {
  for (const auto& model : models) {
    TemplateWords words = WordsOf(kReleases[model.release]);
    words["generated"] = GeneratedBy("the descriptions in kelifc/schema");
    TextWriter out;
    out.Fill(kSlotsHead, words);
    for (const auto& type : model.classes) EmitClassSlots(out, model, type);
    out.Fill(kSlotsTail, words);
    files[Fill("tests/schema/slots_@folder@_test.cpp", words)] = out.Text();
  }
}

}  // namespace schemac
