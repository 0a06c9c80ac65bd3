#ifndef TESTS_SERVER_THREADS_MODEL_TEXT_H_
#define TESTS_SERVER_THREADS_MODEL_TEXT_H_

#include <cstddef>
#include <memory>
#include <string>

#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// What a load returned and left.
struct LoadedModel {
  int result = 0;
  std::unique_ptr<IfcServer> server = std::make_unique<IfcServer>();
  std::string progress;  ///< the calls of the progress handler
};

/// Loads a text. The progress handler stops the load after `mostCalls` calls.
LoadedModel LoadText(const std::string& text, const LoadOptions& options,
                     std::size_t mostCalls = static_cast<std::size_t>(-1));

/// Everything that a host can see of a model: instances in their order with their numbers, places,
/// attributes and inverse attributes, the report, and the calls of the progress handler.
std::string Describe(const LoadedModel& model);

/// The first line in which two texts differ, of both of them; empty if they are equal.
std::string FirstDifference(const std::string& a, const std::string& b);

/// The model as it is saved, from the begin of the data. "cannot be saved" if a save fails.
std::string SavedData(IfcServer& server, bool faithful, unsigned threads = 1);

}  // namespace KelIFC

#endif  // TESTS_SERVER_THREADS_MODEL_TEXT_H_
