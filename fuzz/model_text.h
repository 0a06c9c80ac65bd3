#ifndef FUZZ_MODEL_TEXT_H_
#define FUZZ_MODEL_TEXT_H_

#include <functional>
#include <string>

#include "kelifc/core/unknown.h"
#include "kelifc/server/ifc_server.h"

#include "fuzz/memory_file.h"

namespace fuzz {

/// Saves a model and returns its statements without the header, which contains the time. Overwrites
/// `file`. Aborts the process if the save fails.
std::string SaveToText(KelIFC::IfcServer& server, MemoryFile& file);

/// Returns the record of an instance, `NAME(...)`.
std::string WriteRecord(const KelIFC::IfcUnknown& instance);

/// Whether a record `NAME(...)` has as many attributes as its class, and no inline values. The
/// check for settled texts needs this: in a damaged record an inline value can contain the rest of
/// the record, and then each round of reading and writing changes the text.
bool IsRegular(KelIFC::IfcServer& server, const std::string& record);

/// Whether all statements of a saved model are regular.
bool AreRegular(KelIFC::IfcServer& server, const std::string& model);

/// Calls `again`, which replaces a text by its next version, until the text stops changing or
/// `again` returns false. If this takes more than a few rounds, prints the last two versions to the
/// error stream and aborts the process.
void RequireSettled(std::string text, const std::function<bool(std::string&)>& again);

}  // namespace fuzz

#endif  // FUZZ_MODEL_TEXT_H_
