#include "kelifc/platform/com_error.h"

#include <gtest/gtest.h>

#include <thread>

#include "kelifc/platform/com_bstr.h"
#include "kelifc/platform/com_guid.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {
namespace {

constexpr GUID kGuid = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};

ComPtr<IErrorInfo> MakeError() {
  ComPtr<ICreateErrorInfo> error;
  EXPECT_EQ(CreateErrorInfo(error.Put()), S_OK);
  OLECHAR source[] = L"source";
  OLECHAR description[] = L"description";
  OLECHAR helpFile[] = L"help";
  EXPECT_EQ(error->SetGUID(kGuid), S_OK);
  EXPECT_EQ(error->SetSource(source), S_OK);
  EXPECT_EQ(error->SetDescription(description), S_OK);
  EXPECT_EQ(error->SetHelpFile(helpFile), S_OK);
  EXPECT_EQ(error->SetHelpContext(17), S_OK);
  return error.As<IErrorInfo>();
}

TEST(ErrorInfo, ReturnsWhatWasSet) {
  const ComPtr<IErrorInfo> error = MakeError();
  GUID guid = {};
  Bstr source;
  Bstr description;
  Bstr helpFile;
  DWORD helpContext = 0;
  EXPECT_EQ(error->GetGUID(&guid), S_OK);
  EXPECT_EQ(error->GetSource(source.Put()), S_OK);
  EXPECT_EQ(error->GetDescription(description.Put()), S_OK);
  EXPECT_EQ(error->GetHelpFile(helpFile.Put()), S_OK);
  EXPECT_EQ(error->GetHelpContext(&helpContext), S_OK);
  EXPECT_EQ(guid, kGuid);
  EXPECT_EQ(source.Text(), L"source");
  EXPECT_EQ(description.Text(), L"description");
  EXPECT_EQ(helpFile.Text(), L"help");
  EXPECT_EQ(helpContext, 17U);
}

TEST(ErrorInfo, IsNullAndZeroUntilItIsSet) {
  ComPtr<ICreateErrorInfo> made;
  ASSERT_EQ(CreateErrorInfo(made.Put()), S_OK);
  const auto error = made.As<IErrorInfo>();
  GUID guid = kGuid;
  Bstr description(L"old");
  DWORD helpContext = 1;
  EXPECT_EQ(error->GetGUID(&guid), S_OK);
  EXPECT_EQ(error->GetDescription(description.Put()), S_OK);
  EXPECT_EQ(error->GetHelpContext(&helpContext), S_OK);
  EXPECT_EQ(guid, GUID{});
  EXPECT_EQ(description.Get(), nullptr);
  EXPECT_EQ(helpContext, 0U);
}

TEST(ErrorInfo, RemovesATextThatIsSetToNull) {
  const auto error = MakeError();
  error.As<ICreateErrorInfo>()->SetSource(nullptr);
  Bstr source;
  EXPECT_EQ(error->GetSource(source.Put()), S_OK);
  EXPECT_EQ(source.Get(), nullptr);
}

TEST(ErrorInfo, RefusesANullOutput) {
  const auto error = MakeError();
  EXPECT_EQ(error->GetGUID(nullptr), E_INVALIDARG);
  EXPECT_EQ(error->GetSource(nullptr), E_INVALIDARG);
  EXPECT_EQ(error->GetHelpContext(nullptr), E_INVALIDARG);
  EXPECT_EQ(CreateErrorInfo(nullptr), E_INVALIDARG);
  EXPECT_EQ(GetErrorInfo(0, nullptr), E_INVALIDARG);
}

TEST(ErrorOfTheThread, IsReturnedOnce) {
  const auto error = MakeError();
  ASSERT_EQ(SetErrorInfo(0, error.Get()), S_OK);
  ComPtr<IErrorInfo> found;
  EXPECT_EQ(GetErrorInfo(0, found.Put()), S_OK);
  EXPECT_EQ(found.Get(), error.Get());
  EXPECT_EQ(GetErrorInfo(0, found.Put()), S_FALSE);
  EXPECT_FALSE(found);
}

TEST(ErrorOfTheThread, IsReplacedByTheNextOne) {
  SetErrorInfo(0, MakeError().Get());
  const auto second = MakeError();
  SetErrorInfo(0, second.Get());
  ComPtr<IErrorInfo> found;
  GetErrorInfo(0, found.Put());
  EXPECT_EQ(found.Get(), second.Get());
}

TEST(ErrorOfTheThread, CanBeRemoved) {
  SetErrorInfo(0, MakeError().Get());
  EXPECT_EQ(SetErrorInfo(0, nullptr), S_OK);
  ComPtr<IErrorInfo> found;
  EXPECT_EQ(GetErrorInfo(0, found.Put()), S_FALSE);
}

TEST(ErrorOfTheThread, RequiresZeroForTheReservedArgument) {
  ComPtr<IErrorInfo> found;
  EXPECT_EQ(SetErrorInfo(1, nullptr), E_INVALIDARG);
  EXPECT_EQ(GetErrorInfo(1, found.Put()), E_INVALIDARG);
}

TEST(ErrorOfTheThread, IsSeparateForEachThread) {
  SetErrorInfo(0, MakeError().Get());
  std::thread([] {
    ComPtr<IErrorInfo> found;
    EXPECT_EQ(GetErrorInfo(0, found.Put()), S_FALSE);
    SetErrorInfo(0, MakeError().Get());
  }).join();
  ComPtr<IErrorInfo> found;
  EXPECT_EQ(GetErrorInfo(0, found.Put()), S_OK);
}

}  // namespace
}  // namespace KelIFC
