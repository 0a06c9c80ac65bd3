#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <utility>
#include <vector>

#include "kelifc/geo/dual.h"
#include "kelifc/geo/ifc_server_object.h"
#include "kelifc/platform/com_object.h"

#include "tests/geo/host.h"
#include "tests/geo/model_text.h"

namespace KelIFC {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr char kPoint[] = "#1=IFCCARTESIANPOINT((0.,0.));\n";

class ServerOptions : public HostTest {
 protected:
  ComPtr<IIFCServer> server = Create<IIFCServer>(CLSID_CoIFCServer);
  ComPtr<IIFCServerOptions> options = server.As<IIFCServerOptions>();

  HRESULT Load(const std::string& schema, const std::string& data) {
    const ModelFile file(ModelText(schema, data));
    return LoadFile(*server, file.Path());
  }

  LONG Result() { return GetValue(*options, &IIFCServerOptions::get_LoadResult); }

  double CountOf(const wchar_t* name) {
    double count = -1;
    EXPECT_EQ(options->ReportCount(Bstr(name).Get(), &count), S_OK);
    return count;
  }

  void TearDown() override {
    options.Reset();
    server.Reset();
    HostTest::TearDown();
  }
};

TEST_F(ServerOptions, BeginWithTheClassicDialectAndTheDocumentedLimits) {
  const LoadLimits limits;
  EXPECT_EQ(GetValue(*options, &IIFCServerOptions::get_Dialect), STEP_DIALECT_CLASSIC);
  EXPECT_EQ(GetValue(*options, &IIFCServerOptions::get_MaxBytes), double(limits.maxBytes));
  EXPECT_EQ(GetValue(*options, &IIFCServerOptions::get_MaxInstances), double(limits.maxInstances));
  EXPECT_EQ(GetValue(*options, &IIFCServerOptions::get_MaxStatementBytes),
            double(limits.maxStatementBytes));
  EXPECT_EQ(GetValue(*options, &IIFCServerOptions::get_MaxMemoryBytes),
            double(limits.maxMemoryBytes));
}

TEST_F(ServerOptions, KeepWhatAHostSets) {
  EXPECT_EQ(options->put_Dialect(STEP_DIALECT_ISO), S_OK);
  EXPECT_EQ(options->put_MaxBytes(1000), S_OK);
  EXPECT_EQ(options->put_MaxInstances(0), S_OK);
  EXPECT_EQ(options->put_MaxStatementBytes(300), S_OK);
  EXPECT_EQ(options->put_MaxMemoryBytes(4000), S_OK);
  EXPECT_EQ(GetValue(*options, &IIFCServerOptions::get_Dialect), STEP_DIALECT_ISO);
  EXPECT_EQ(GetValue(*options, &IIFCServerOptions::get_MaxBytes), 1000);
  EXPECT_EQ(GetValue(*options, &IIFCServerOptions::get_MaxInstances), 0);
  EXPECT_EQ(GetValue(*options, &IIFCServerOptions::get_MaxStatementBytes), 300);
  EXPECT_EQ(GetValue(*options, &IIFCServerOptions::get_MaxMemoryBytes), 4000);
}

TEST_F(ServerOptions, RefuseValuesThatAreNone) {
  EXPECT_EQ(options->put_Dialect(2), E_INVALIDARG);
  EXPECT_EQ(options->put_Dialect(-1), E_INVALIDARG);
  for (const double bad : {-1.0, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(options->put_MaxBytes(bad), E_INVALIDARG);
  }
  ComPtr<ICreateErrorInfo> error;
  ASSERT_EQ(CreateErrorInfo(error.Put()), S_OK);
  EXPECT_EQ(options->SetProgress(error.Get()), E_NOINTERFACE);
}

TEST_F(ServerOptions, WithoutAnOptionALoadKeepsNoReport) {
  EXPECT_EQ(Load("IFC2X3", kPoint), S_OK);
  EXPECT_EQ(Result(), LOAD_RESULT_LOADED);
  EXPECT_EQ(CountOf(L"statements"), 0);
  EXPECT_EQ(GetValue(*options, &IIFCServerOptions::CheckModel), VARIANT_FALSE);
}

TEST_F(ServerOptions, ALoadReadsByTheDialect) {
  EXPECT_EQ(Load("ifc2x3", kPoint), STG_E_FILENOTFOUND);
  EXPECT_EQ(Result(), LOAD_RESULT_UNKNOWN_SCHEMA);
  EXPECT_EQ(options->put_Dialect(STEP_DIALECT_ISO), S_OK);
  EXPECT_EQ(Load("ifc2x3", kPoint), S_OK);
  EXPECT_EQ(Result(), LOAD_RESULT_LOADED);
  EXPECT_EQ(Load("IFC4", kPoint), STG_E_FILENOTFOUND);
  EXPECT_EQ(Result(), LOAD_RESULT_UNSUPPORTED_RELEASE);
}

TEST_F(ServerOptions, ALoadEndsAtALimit) {
  EXPECT_EQ(options->put_MaxBytes(20), S_OK);
  EXPECT_EQ(Load("IFC2X3", kPoint), STG_E_FILENOTFOUND);
  EXPECT_EQ(Result(), LOAD_RESULT_LIMIT_REACHED);
  EXPECT_EQ(options->put_MaxBytes(0), S_OK);
  EXPECT_EQ(Load("IFC2X3", kPoint), S_OK);
}

TEST_F(ServerOptions, TellWhatALoadMet) {
  EXPECT_EQ(options->put_Dialect(STEP_DIALECT_ISO), S_OK);
  const ModelFile file(
      ModelText("IFC2X3", std::string(kPoint) + kPoint + "#2=IFCPOLYLINE((#1,#8));\n"));
  EXPECT_EQ(LoadFile(*server, file.Path()), S_OK);
  EXPECT_EQ(CountOf(L"statements"), 3);
  EXPECT_EQ(CountOf(L"repeatedNumbers"), 1);
  EXPECT_EQ(CountOf(L"danglingReferences"), 0);
  EXPECT_EQ(GetValue(*options, &IIFCServerOptions::CheckModel), VARIANT_TRUE);
  EXPECT_EQ(CountOf(L"danglingReferences"), 1);
  EXPECT_THAT(GetText(*options, &IIFCServerOptions::get_ReportText), HasSubstr(L"used twice"));
  EXPECT_THAT(GetText(*options, &IIFCServerOptions::get_ReportJson),
              StartsWith(L"{\"statements\":3,"));
  LONG line = 0;
  EXPECT_EQ(options->SourceLine(2, &line), S_OK);
  EXPECT_EQ(line, 10);
  EXPECT_EQ(options->SourceLine(-2, &line), S_OK);
  EXPECT_EQ(line, 0);
}

TEST_F(ServerOptions, RefuseCountsThatTheReportDoesNotHave) {
  double count = 1;
  EXPECT_EQ(options->ReportCount(Bstr(L"none").Get(), &count), E_INVALIDARG);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(options->ReportCount(nullptr, &count), E_INVALIDARG);
  EXPECT_EQ(options->ReportCount(nullptr, nullptr), E_POINTER);
  EXPECT_EQ(options->get_ReportText(nullptr), E_POINTER);
  EXPECT_EQ(options->CheckModel(nullptr), E_POINTER);
  EXPECT_EQ(options->SourceLine(1, nullptr), E_POINTER);
  EXPECT_EQ(options->get_Dialect(nullptr), E_POINTER);
}

using Calls = std::vector<std::pair<double, double>>;

/// Notes the calls, and goes on or cancels.
class Listener : public Dual<IIFCLoadProgress> {
 public:
  using Interfaces = DualInterfaces<IIFCLoadProgress>;

  Listener(Calls* target, bool isPatient, IIFCServerOptions* toCancel)
      : calls(target), continues(isPatient), cancelled(toCancel) {}

  HRESULT Progress(double bytesDone, double bytesTotal, VARIANT_BOOL* out) override {
    EXPECT_EQ(*out, VARIANT_TRUE);
    calls->emplace_back(bytesDone, bytesTotal);
    if (!continues) *out = VARIANT_FALSE;
    if (cancelled != nullptr) cancelled->CancelLoad();
    return S_OK;
  }

 protected:
  ~Listener() = default;

 private:
  Calls* calls;
  bool continues;
  IIFCServerOptions* cancelled;
};

ComPtr<IUnknown> MakeListener(Calls& calls, bool continues, IIFCServerOptions* cancelled) {
  ComPtr<IUnknown> listener;
  EXPECT_EQ(MakeObject<Listener>(IidOf<IUnknown>(), reinterpret_cast<void**>(listener.Put()),
                                 &calls, continues, cancelled),
            S_OK);
  return listener;
}

TEST_F(ServerOptions, AListenerFollowsALoad) {
  Calls calls;
  EXPECT_EQ(options->SetProgress(MakeListener(calls, true, nullptr).Get()), S_OK);
  EXPECT_EQ(Load("IFC2X3", kPoint), S_OK);
  ASSERT_FALSE(calls.empty());
  for (const auto& [done, total] : calls) EXPECT_LE(done, total);
  const std::size_t count = calls.size();
  EXPECT_EQ(options->SetProgress(nullptr), S_OK);
  EXPECT_EQ(Load("IFC2X3", kPoint), S_OK);
  EXPECT_EQ(calls.size(), count);
}

TEST_F(ServerOptions, AListenerStopsALoad) {
  Calls calls;
  EXPECT_EQ(options->SetProgress(MakeListener(calls, false, nullptr).Get()), S_OK);
  EXPECT_EQ(Load("IFC2X3", kPoint), STG_E_FILENOTFOUND);
  EXPECT_EQ(Result(), LOAD_RESULT_CANCELLED);
  EXPECT_EQ(calls.size(), 1U);
}

TEST_F(ServerOptions, AFunctionThatCannotBeCalledStopsALoad) {
#ifdef _WIN32
  GTEST_SKIP() << "here every object can be called";
#endif
  EXPECT_EQ(options->SetProgress(Create<IGeoPoint>(CLSID_CoGeoPoint).Get()), S_OK);
  EXPECT_EQ(Load("IFC2X3", kPoint), STG_E_FILENOTFOUND);
  EXPECT_EQ(Result(), LOAD_RESULT_CANCELLED);
}

TEST_F(ServerOptions, CancelStopsTheLoadThatRunsOnly) {
  Calls calls;
  EXPECT_EQ(options->SetProgress(MakeListener(calls, true, options.Get()).Get()), S_OK);
  EXPECT_EQ(Load("IFC2X3", kPoint), STG_E_FILENOTFOUND);
  EXPECT_EQ(Result(), LOAD_RESULT_CANCELLED);
  EXPECT_EQ(calls.size(), 1U);
  EXPECT_EQ(options->SetProgress(nullptr), S_OK);
  EXPECT_EQ(Load("IFC2X3", kPoint), S_OK);
}

}  // namespace
}  // namespace KelIFC
