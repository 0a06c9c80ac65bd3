#ifndef TOOLS_KELIFC_JSON_H_
#define TOOLS_KELIFC_JSON_H_

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace command {

/// JSON. An object keeps its members in the order in which they were added.
using Json = nlohmann::ordered_json;

/// Writes an object as UTF-8 text. Each member has a line. If a member is a list or an object, each
/// of its entries has a line. A number reads back as the same double, and a number that is not
/// finite becomes null. A byte that is not UTF-8 becomes U+FFFD.
std::string ToText(const Json& object);

/// A text as JSON, with its quotes.
std::string JsonText(std::string_view text);

/// A number as JSON: the shortest text that reads back as the same double; null for a number that
/// is not finite.
std::string NumberText(double value);

}  // namespace command

#endif  // TOOLS_KELIFC_JSON_H_
