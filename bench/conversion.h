#ifndef BENCH_CONVERSION_H_
#define BENCH_CONVERSION_H_

#include "kelifc/geo/interfaces.h"
#include "kelifc/platform/com.h"

namespace bench {

// These functions abort the process if an operation fails.

/// Creates a server object without a model.
KelIFC::ComPtr<IIFCServer> MakeServer();

/// Returns the structure of the server's model. Nothing is converted yet.
KelIFC::ComPtr<IGeoStructure> GetStructure(IIFCServer& server);

/// Converts all collections of the structure and returns the number of their objects, storeys
/// included.
LONG ConvertAll(IGeoStructure& structure);

}  // namespace bench

#endif  // BENCH_CONVERSION_H_
