#ifndef KELIFC_CORE_REFERENCES_MODEL_H_
#define KELIFC_CORE_REFERENCES_MODEL_H_

#include <cstddef>

namespace KelIFC {

class IfcServer;
class IfcUnknown;

// The operations of the model that the value layer needs. The server folder defines them, so that
// no include of this layer refers to a higher layer. Each calls the virtual operation of IfcServer.
// For a null server they return null or 0 and have no effect.

/// Returns the instance with a number, or null.
IfcUnknown* FindInstance(IfcServer* server, std::size_t number);

/// Returns the number of an instance, 0 if the model does not hold it. `instance` is compared only
/// and can be dangling.
std::size_t FindNumber(const IfcServer* server, const IfcUnknown* instance);

/// Makes an unregistered instance from the entity name at `text`; stores the position after the
/// name in `end`. The caller owns the instance. Returns null for a name that the release does not
/// know.
IfcUnknown* ParseInstance(IfcServer* server, const char* text, const char** end);

/// Registers an instance with a new number in the model, which becomes its owner. Returns the
/// number.
std::size_t AddInstance(IfcServer* server, IfcUnknown* instance);

/// Returns true during postponed work of a load if the statement of a number comes after the one on
/// whose behalf the work is done. So that instance has attributes which a load on one thread would
/// not have read yet. Returns false at any other time.
bool IsReadLater(const IfcServer* server, std::size_t number);

}  // namespace KelIFC

#endif  // KELIFC_CORE_REFERENCES_MODEL_H_
