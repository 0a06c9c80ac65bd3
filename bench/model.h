#ifndef BENCH_MODEL_H_
#define BENCH_MODEL_H_

#include <cstdint>
#include <string>

#include "kelifc/server/ifc_server.h"

namespace bench {

/// Returns the path of the model that the benchmarks use.
const std::string& GetModelPath();

/// Returns the size of the model's file in bytes, -1 if there is no such file.
std::int64_t GetModelSize();

/// Loads the model. Exits the program with an error message if this fails.
void LoadModel(KelIFC::IfcServer& server);

/// Returns a server with the loaded model, which all benchmarks of the program share. They must not
/// change it.
KelIFC::IfcServer& GetLoadedServer();

}  // namespace bench

#endif  // BENCH_MODEL_H_
