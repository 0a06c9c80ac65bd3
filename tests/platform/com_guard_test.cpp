#include "kelifc/platform/com_guard.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace KelIFC {
namespace {

TEST(Guard, ReturnsTheStatusOfTheCall) {
  EXPECT_EQ(Guard([] { return S_FALSE; }), S_FALSE);
  EXPECT_EQ(Guard([] { return E_NOTIMPL; }), E_NOTIMPL);
}

TEST(Guard, TurnsBadAllocIntoOutOfMemory) {
  EXPECT_EQ(Guard([]() -> HRESULT { throw std::bad_alloc(); }), E_OUTOFMEMORY);
}

TEST(Guard, TurnsAnyOtherExceptionIntoAFailure) {
  EXPECT_EQ(Guard([]() -> HRESULT { throw std::runtime_error("x"); }), E_FAIL);
  EXPECT_EQ(Guard([]() -> HRESULT { throw 1; }), E_FAIL);
}

}  // namespace
}  // namespace KelIFC
