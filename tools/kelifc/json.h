#ifndef TOOLS_KELIFC_JSON_H_
#define TOOLS_KELIFC_JSON_H_

#include <nlohmann/json.hpp>
#include <string>

namespace command {

/// JSON whose members keep the order in which they were added.
using Json = nlohmann::ordered_json;

/// One object as UTF-8 text with a line for each member and for each entry of a member that is a
/// list or an object. Numbers read back as the same double; one that is not finite is null; bytes
/// that are no UTF-8 become U+FFFD.
std::string ToText(const Json& object);

}  // namespace command

#endif  // TOOLS_KELIFC_JSON_H_
