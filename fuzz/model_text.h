#ifndef FUZZ_MODEL_TEXT_H_
#define FUZZ_MODEL_TEXT_H_

#include <functional>
#include <string>
#include <string_view>

#include "kelifc/server/ifc_server.h"

#include "fuzz/memory_file.h"

namespace fuzz {

/// The statements of a model as it is saved, without the header, which holds the time. `file` is
/// overwritten.
std::string SaveToText(KelIFC::IfcServer& server, MemoryFile& file);

/// True if a value stands in place in a statement. One whose name is unknown is written in a form
/// that reads as something else.
bool HasValueInPlace(std::string_view statement);
bool HasValuesInPlace(const std::string& model);

/// Calls `again`, which makes a text from the one before, until that does not change any more or
/// `again` gives false. Ends the process with the last two on the error stream if that takes more
/// than a few rounds.
void RequireSettled(std::string text, const std::function<bool(std::string&)>& again);

}  // namespace fuzz

#endif  // FUZZ_MODEL_TEXT_H_
