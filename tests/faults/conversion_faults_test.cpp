#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>

#include "kelifc/kelifc.h"

#include "tests/faults/failing_allocation.h"
#include "tests/geo/host.h"
#include "tests/paths.h"
#include "tools/kelifc/structure_reader.h"

namespace KelIFC {
namespace {

std::string ModelPath() { return std::string(kExamplesDir) + "/hall.ifc"; }

/// What a host got from one run.
struct Outcome {
  HRESULT load = E_FAIL;     ///< the status of the load
  std::size_t elements = 0;  ///< of the whole structure; 0 if the structure could not be read
};

std::size_t CountElements(const command::Structure& structure) {
  return structure.columns.size() + structure.beams.size() + structure.walls.size() +
         structure.plates.size() + structure.foots.size();
}

/// Loads the model and reads its whole structure, as a host does. Afterwards the thread has no
/// error object. An exception that left an interface would end the program.
Outcome ReadModel() {
  struct ErrorEnd {
    ~ErrorEnd() { SetErrorInfo(0, nullptr); }
  } const end;
  Outcome outcome;
  ComPtr<IIFCServer> server;
  if (CoCreateInstance(CLSID_CoIFCServer, nullptr, CLSCTX_ALL, IidOf<IIFCServer>(),
                       reinterpret_cast<void**>(server.Put())) != S_OK) {
    return outcome;
  }
  try {
    outcome.load = server->Load(Bstr(WidePath(ModelPath())).Get());
    ComPtr<IGeoStructure> structure;
    if (server->get_Structure(structure.Put()) != S_OK) return outcome;
    outcome.elements = CountElements(command::ReadStructure(structure));
  } catch (const std::bad_alloc&) {  // of the host itself
  } catch (const std::runtime_error&) {
  }
  return outcome;
}

class FaultyConversion : public HostTest {};

TEST_F(FaultyConversion, FreesAllMemory) {
  SweepFailures([] { ReadModel(); });
}

TEST_F(FaultyConversion, NeverHasMoreElementsThanWithoutAFailure) {
  const Outcome whole = ReadModel();
  ASSERT_EQ(whole.load, S_OK);
  ASSERT_GT(whole.elements, 0u);
  std::size_t most = 0;
  SweepFailures([&] { most = std::max(most, ReadModel().elements); });
  EXPECT_EQ(most, whole.elements);
}

TEST_F(FaultyConversion, ReportsThatMemoryIsExhausted) {
  auto server = Create<IIFCServer>(CLSID_CoIFCServer);
  const Bstr path(WidePath(ModelPath()));
  {
    const FailingAllocation failing(1, Shortage::kFrom);
    EXPECT_EQ(server->Load(path.Get()), E_OUTOFMEMORY);
  }
  ASSERT_EQ(server->Load(path.Get()), S_OK);
  const auto structure = GetObject(*server, &IIFCServer::get_Structure);
  ComPtr<IGeoColumns> columns;
  {
    const FailingAllocation failing(1, Shortage::kFrom);
    EXPECT_EQ(structure->get_Columns(columns.Put()), E_OUTOFMEMORY);
    EXPECT_EQ(columns.Get(), nullptr);
  }
  EXPECT_EQ(structure->get_Columns(columns.Put()), S_OK);
}

}  // namespace
}  // namespace KelIFC
