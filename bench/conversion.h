#ifndef BENCH_CONVERSION_H_
#define BENCH_CONVERSION_H_

#include "kelifc/geo/interfaces.h"
#include "kelifc/platform/com.h"

namespace bench {

/// A server object without a model. Each function here ends the process where an operation fails.
KelIFC::ComPtr<IIFCServer> MakeServer();

/// The structure of the model that the server holds.
KelIFC::ComPtr<IGeoStructure> GetStructure(IIFCServer& server);

/// Asks for all collections of elements, which converts them, and gives how many elements there
/// are.
LONG ConvertAll(IGeoStructure& structure);

}  // namespace bench

#endif  // BENCH_CONVERSION_H_
