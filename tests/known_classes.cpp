#include "tests/known_classes.h"

#include <gtest/gtest.h>

#include <memory>

#include "kelifc/platform/com_local_classes.h"

namespace KelIFC {

namespace {

std::unique_ptr<LocalClasses>& Known() {
  static std::unique_ptr<LocalClasses> known;
  return known;
}

class Classes : public testing::Environment {
 public:
  void SetUp() override {
#ifdef _WIN32
    ASSERT_GE(CoInitialize(nullptr), 0);  // keeps COM initialised while a test changes the classes
#endif
    KnowClasses();
  }
  void TearDown() override {
    ForgetClasses();
#ifdef _WIN32
    CoUninitialize();
#endif
  }
};

[[maybe_unused]] const testing::Environment* const environment =
    testing::AddGlobalTestEnvironment(new Classes);

}  // namespace

void KnowClasses() {
  Known() = std::make_unique<LocalClasses>();
  ASSERT_GE(Known()->GetStatus(), 0);
}

void ForgetClasses() { Known().reset(); }

}  // namespace KelIFC
