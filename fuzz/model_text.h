#ifndef FUZZ_MODEL_TEXT_H_
#define FUZZ_MODEL_TEXT_H_

#include <functional>
#include <string>

#include "kelifc/core/unknown.h"
#include "kelifc/server/ifc_server.h"

#include "fuzz/memory_file.h"

namespace fuzz {

/// The statements of a model as it is saved, without the header, which holds the time. `file` is
/// overwritten.
std::string SaveToText(KelIFC::IfcServer& server, MemoryFile& file);

/// The record of an instance, with its closing parenthesis.
std::string WriteRecord(const KelIFC::IfcUnknown& instance);

/// True if the record, `NAME(...)`, has as many attributes as one of its class has that holds
/// nothing, and no value stands in place in it. Others tell of a value in place that holds the rest
/// of a damaged record: it is written, and then read, as something else each time.
bool IsRegular(KelIFC::IfcServer& server, const std::string& record);

/// The same for all statements of a saved model.
bool AreRegular(KelIFC::IfcServer& server, const std::string& model);

/// Calls `again`, which makes a text from the one before, until that does not change any more or
/// `again` gives false. Ends the process with the last two on the error stream if that takes more
/// than a few rounds.
void RequireSettled(std::string text, const std::function<bool(std::string&)>& again);

}  // namespace fuzz

#endif  // FUZZ_MODEL_TEXT_H_
