#ifndef KELIFC_CORE_REFERENCES_MODEL_H_
#define KELIFC_CORE_REFERENCES_MODEL_H_

#include <cstddef>

namespace KelIFC {

class IfcServer;
class IfcUnknown;

// What the value layer asks of the model. The server folder defines these; each forwards to the
// virtual operation of IfcServer, so that no include of this layer points upwards.
// A null server gives null, 0 or no effect.

/// The instance under a number, or null.
IfcUnknown* FindInstance(IfcServer* server, std::size_t number);

/// The number of an instance, 0 if the model does not hold it. Never follows the pointer.
std::size_t FindNumber(const IfcServer* server, const IfcUnknown* instance);

/// Makes an unregistered instance from the entity name at `text`; `end` receives the position
/// behind the name. The caller owns the result; null for a name the release does not know.
IfcUnknown* ParseInstance(IfcServer* server, const char* text, const char** end);

/// Registers an instance under a new number and hands it to the model. Gives the number.
std::size_t AddInstance(IfcServer* server, IfcUnknown* instance);

}  // namespace KelIFC

#endif  // KELIFC_CORE_REFERENCES_MODEL_H_
