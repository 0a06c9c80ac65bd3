#include <cstdint>
#include <string>

#include "kelifc/geo/fields.h"
#include "kelifc/geo/ifc_server_object.h"
#include "kelifc/platform/com_dispatch.h"
#include "kelifc/platform/com_guard.h"
#include "kelifc/platform/com_text.h"
#include "kelifc/server/report_format.h"

// The options and the report of the server object.

namespace KelIFC {
namespace {

constexpr VARIANT_BOOL TruthOf(bool value) { return value ? VARIANT_TRUE : VARIANT_FALSE; }

}  // namespace

LoadOptions& CoIFCServer::ChosenOptions() {
  if (!options) options.emplace();
  return *options;
}

HRESULT CoIFCServer::get_Dialect(LONG* out) {
  return GetField(static_cast<LONG>(options.value_or(LoadOptions()).dialect), out);
}

HRESULT CoIFCServer::put_Dialect(LONG dialect) {
  if (dialect != STEP_DIALECT_CLASSIC && dialect != STEP_DIALECT_ISO) return E_INVALIDARG;
  ChosenOptions().dialect = static_cast<STEP_DIALECT>(dialect);
  return S_OK;
}

HRESULT CoIFCServer::GetLimit(std::uint64_t LoadLimits::*limit, double* out) const {
  return GetField(static_cast<double>(options.value_or(LoadOptions()).limits.*limit), out);
}

HRESULT CoIFCServer::PutLimit(std::uint64_t LoadLimits::*limit, double value) {
  constexpr double kMost = 9007199254740992.0;  // 2^53: up to here a double holds every integer
  if (!(value >= 0 && value <= kMost)) return E_INVALIDARG;
  ChosenOptions().limits.*limit = static_cast<std::uint64_t>(value);
  return S_OK;
}

HRESULT CoIFCServer::get_MaxBytes(double* out) { return GetLimit(&LoadLimits::maxBytes, out); }

HRESULT CoIFCServer::put_MaxBytes(double bytes) { return PutLimit(&LoadLimits::maxBytes, bytes); }

HRESULT CoIFCServer::get_MaxInstances(double* out) {
  return GetLimit(&LoadLimits::maxInstances, out);
}

HRESULT CoIFCServer::put_MaxInstances(double count) {
  return PutLimit(&LoadLimits::maxInstances, count);
}

HRESULT CoIFCServer::get_MaxStatementBytes(double* out) {
  return GetLimit(&LoadLimits::maxStatementBytes, out);
}

HRESULT CoIFCServer::put_MaxStatementBytes(double bytes) {
  return PutLimit(&LoadLimits::maxStatementBytes, bytes);
}

HRESULT CoIFCServer::get_MaxMemoryBytes(double* out) {
  return GetLimit(&LoadLimits::maxMemoryBytes, out);
}

HRESULT CoIFCServer::put_MaxMemoryBytes(double bytes) {
  return PutLimit(&LoadLimits::maxMemoryBytes, bytes);
}

HRESULT CoIFCServer::SetProgress(IUnknown* receiver) {
  const ComPtr<IUnknown> object(receiver);
  auto listener = object.As<IIFCLoadProgress>();
  auto function = listener ? ComPtr<IDispatch>() : object.As<IDispatch>();
  if (object && !listener && !function) return E_NOINTERFACE;
  ChosenOptions();
  progress = std::move(listener);
  progressFunction = std::move(function);
  return S_OK;
}

HRESULT CoIFCServer::CancelLoad() {
  isCancelled = true;
  return S_OK;
}

// The receiver may replace itself during the call, so it is held.
bool CoIFCServer::ReportProgress(std::uint64_t bytesDone, std::uint64_t bytesTotal) {
  const auto done = static_cast<double>(bytesDone);
  const auto total = static_cast<double>(bytesTotal);
  VARIANT_BOOL continues = VARIANT_TRUE;
  HRESULT status = S_OK;
  if (const auto listener = progress) status = listener->Progress(done, total, &continues);
  if (const auto function = progressFunction) {
    status = CallFunction(*function, done, total, &continues);
  }
  return SUCCEEDED(status) && continues != VARIANT_FALSE && !isCancelled;
}

HRESULT CoIFCServer::get_LoadResult(LONG* out) { return GetField(loadResult, out); }

HRESULT CoIFCServer::CheckModel(VARIANT_BOOL* out) {
  if (out == nullptr) return E_POINTER;
  *out = VARIANT_FALSE;
  return Guard([&] {
    *out = TruthOf(server.CheckModel());
    return S_OK;
  });
}

HRESULT CoIFCServer::get_ReportText(BSTR* out) {
  return Guard([&] { return GiveText(FormatReport(server.GetLoadReport()), out); });
}

HRESULT CoIFCServer::get_ReportJson(BSTR* out) {
  return Guard([&] { return GiveText(FormatReportAsJson(server.GetLoadReport()), out); });
}

HRESULT CoIFCServer::ReportCount(BSTR name, double* out) {
  if (out == nullptr) return E_POINTER;
  *out = 0;
  return Guard([&] {
    const auto count = FindReportCount(server.GetLoadReport(), NarrowText(name));
    if (!count) return E_INVALIDARG;
    *out = static_cast<double>(*count);
    return S_OK;
  });
}

HRESULT CoIFCServer::SourceLine(LONG number, LONG* out) {
  const std::size_t id = number > 0 ? static_cast<std::size_t>(number) : 0;
  return GetField(static_cast<LONG>(server.GetSourceLine(id)), out);
}

}  // namespace KelIFC
