#include "kelifc/core/exception.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

TEST(Exception, CarriesItsCause) {
  EXPECT_EQ(IfcException().GetCause(), CAUSE_NONE);
  const IfcException exception(CAUSE_MISSING_REFERENCE);
  EXPECT_EQ(exception.GetCause(), 1);
  IfcException copy;
  copy = exception;
  EXPECT_EQ(copy.GetCause(), CAUSE_MISSING_REFERENCE);
}

TEST(Exception, IsAnErrorOfTheStandardLibrary) {
  try {
    throw IfcException(CAUSE_MISSING_REFERENCE);
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "a required reference leads to no instance of its class");
  }
}

}  // namespace
}  // namespace KelIFC
