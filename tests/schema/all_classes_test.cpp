#include <type_traits>

#include "tests/schema/model.h"

// Tests that apply to every class of a release.

namespace KelIFC {
namespace {

template <class Type>
constexpr bool kIsInstance =
    std::is_base_of_v<IfcUnknown, Type>&& std::is_default_constructible_v<Type> &&
    !std::is_abstract_v<Type>;

template <class R>
class AllClasses : public testing::Test {
 public:
  /// Calls `check` with a new instance of each class that a host can create.
  template <class Check>
  static void ForEach(Check check) {
    R::ForEachClass([&]<class Type>() {
      if constexpr (kIsInstance<Type>) {
        Type instance;
        SCOPED_TRACE(instance.GetStepName());
        check(instance);
      }
    });
  }
};
using Releases = testing::Types<Release151, Release20, Release2x, Release2x2, Release2x3>;
TYPED_TEST_SUITE(AllClasses, Releases);

/// A record with one position too many for any class.
std::string Record(const IfcUnknown& instance, const std::string& value) {
  std::string text = instance.GetStepName();
  text += "(";
  for (int i = 0; i < 24; ++i) text += (i == 0 ? "" : ",") + value;
  return text + ")";
}

TYPED_TEST(AllClasses, ReturnTheSameNameFromClassAndInstance) {
  this->ForEach([](auto& instance) {
    EXPECT_STREQ(instance.GetStepName(), std::decay_t<decltype(instance)>::GetItemName());
  });
}

TYPED_TEST(AllClasses, ReadAnythingWithoutHarm) {
  IfcServer server;
  server.SetRelease(TypeParam::kRelease);
  this->ForEach([&](auto& instance) {
    instance.SetServer(&server);
    for (const std::string value :
         {"$", "*", "#1", "1.5", "'text'", ".X.", "(#1,#2)", "(1.,2.)", "IFCLABEL('x')", "((", "",
          "'", "\\", ")", "IFCPARAMETERVALUE(IFCLABEL('x'))"}) {
      instance.Parse(Record(instance, value).c_str());
      EXPECT_FALSE(Text(instance).empty());
    }
  });
}

}  // namespace
}  // namespace KelIFC
