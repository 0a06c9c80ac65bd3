#include "kelifc/geo/load_failure.h"

#include <string>
#include <string_view>

#include "kelifc/geo/class_bases.h"
#include "kelifc/platform/com_error.h"
#include "kelifc/platform/com_guard.h"
#include "kelifc/platform/com_ptr.h"
#include "kelifc/platform/com_string.h"

namespace KelIFC {

namespace {

constexpr std::wstring_view kPlace = L"%1";

std::wstring_view TextOf(LoadFailure failure) {
  switch (failure) {
    case LoadFailure::kNotFound:
      return L"%1 was not found or cannot be opened.";
    case LoadFailure::kNoModel:
      return L"%1 is not an IFC file that can be read.";
    case LoadFailure::kNotConvertible:
      return L"The IFC release of %1 cannot be converted.";
  }
  return kPlace;
}

std::wstring Format(std::wstring_view text, std::wstring_view argument) {
  std::wstring message(text);
  return message.replace(message.find(kPlace), kPlace.size(), argument);
}

HRESULT SetError(std::wstring message) {
  ComPtr<ICreateErrorInfo> error;
  const HRESULT status = CreateErrorInfo(error.Put());
  if (FAILED(status)) return status;
  std::wstring source = CoIFCServerBase::kProgId;
  error->SetGUID(GUID{});
  error->SetSource(source.data());
  error->SetDescription(message.data());
  return SetErrorInfo(0, error.As<IErrorInfo>().Get());
}

}  // namespace

HRESULT ReportLoadFailure(LoadFailure failure, BSTR fileName) {
  const std::wstring_view name = fileName == nullptr
                                     ? std::wstring_view()
                                     : std::wstring_view(fileName, SysStringLen(fileName));
  // If there is no memory for the message, the status alone reports the failure.
  static_cast<void>(Guard([&] { return SetError(Format(TextOf(failure), name)); }));
  return STG_E_FILENOTFOUND;
}

}  // namespace KelIFC
