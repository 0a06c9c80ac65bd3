#ifndef BENCH_MODEL_H_
#define BENCH_MODEL_H_

#include <cstdint>
#include <string>

#include "kelifc/server/ifc_server.h"

namespace bench {

/// The path of the model that is measured with.
const std::string& GetModelPath();

/// Its size in bytes.
std::int64_t GetModelSize();

/// Loads it. Ends the program if that fails.
void LoadModel(KelIFC::IfcServer& server);

/// A server that holds the model, for measurements that do not change it.
KelIFC::IfcServer& GetLoadedServer();

}  // namespace bench

#endif  // BENCH_MODEL_H_
