#include "kelifc/platform/com_types.h"

#include <gtest/gtest.h>

#include <cstdint>

// Hosts compare with these numbers, so each is written here a second time.

namespace {

struct StatusRow {
  HRESULT status;
  std::uint32_t number;
};

constexpr StatusRow kStatuses[] = {
    {S_OK, 0},
    {S_FALSE, 1},
    {E_NOTIMPL, 0x80004001},
    {E_NOINTERFACE, 0x80004002},
    {E_POINTER, 0x80004003},
    {E_FAIL, 0x80004005},
    {E_INVALIDARG, 0x80070057},
    {E_OUTOFMEMORY, 0x8007000E},
    {STG_E_FILENOTFOUND, 0x80030002},
};

TEST(ComTypes, GiveEachStatusItsNumber) {
  for (const StatusRow& row : kStatuses) {
    EXPECT_EQ(static_cast<std::uint32_t>(row.status), row.number);
  }
}

TEST(ComTypes, CountEveryNumberFromTheHighestBitOnAsAFailure) {
  for (const StatusRow& row : kStatuses) {
    EXPECT_EQ(FAILED(row.status), row.number >= 0x80000000) << row.number;
    EXPECT_NE(FAILED(row.status), SUCCEEDED(row.status)) << row.number;
  }
}

TEST(ComTypes, WriteTrueAsMinusOne) {
  EXPECT_EQ(VARIANT_TRUE, -1);
  EXPECT_EQ(VARIANT_FALSE, 0);
  EXPECT_EQ(sizeof(VARIANT_BOOL), 2U);
}

TEST(ComTypes, GiveEachContextMaskItsNumber) {
  EXPECT_EQ(static_cast<DWORD>(CLSCTX_ALL), 23U);
  EXPECT_EQ(static_cast<DWORD>(CLSCTX_SERVER), 21U);
}

}  // namespace
