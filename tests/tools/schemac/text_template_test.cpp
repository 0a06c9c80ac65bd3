#include "tools/schemac/text_template.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace schemac {
namespace {

TEST(Fill, ReplacesEachWord) {
  EXPECT_EQ(Fill("@a@ and @b@@a@.", {{"a", "1"}, {"b", ""}}), "1 and 1.");
  EXPECT_EQ(Fill("nothing", {}), "nothing");
}

TEST(Fill, DoesNotSearchInsertedText) { EXPECT_EQ(Fill("@a@", {{"a", "@b@"}}), "@b@"); }

TEST(Fill, RefusesAWordWithoutText) {
  EXPECT_THROW(Fill("x @a@", {{"b", "1"}}), std::logic_error);
  EXPECT_THROW(Fill("x @b", {{"b", "1"}}), std::logic_error);
}

}  // namespace
}  // namespace schemac
