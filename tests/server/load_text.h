#ifndef KELIFC_TESTS_SERVER_LOAD_TEXT_H_
#define KELIFC_TESTS_SERVER_LOAD_TEXT_H_

#include <cstddef>
#include <sstream>
#include <string>
#include <vector>

#include "kelifc/core/unknown.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

inline LoadOptions OptionsFor(STEP_DIALECT dialect) {
  LoadOptions options;
  options.dialect = dialect;
  return options;
}

/// Loads a file of this text in the dialect of ISO 10303-21.
inline int LoadIso(IfcServer& server, const std::string& text) {
  return server.LoadIfcMemory(text.data(), text.size(), OptionsFor(STEP_DIALECT_ISO));
}

/// The head of a file of a schema, up to the begin of the data.
inline std::string HeadOf(const std::string& schema) {
  return "ISO-10303-21;HEADER;FILE_SCHEMA(('" + schema + "'));ENDSEC;DATA;\n";
}

inline std::vector<std::size_t> NumbersOf(const IfcServer& server) {
  std::vector<std::size_t> numbers;
  for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    numbers.push_back(n);
  }
  return numbers;
}

/// What the instance of a number writes, up to its last parenthesis; "none" if there is none.
inline std::string RecordOf(IfcServer& server, std::size_t number) {
  const IfcUnknown* instance = server.GetItem(number);
  if (instance == nullptr) return "none";
  std::ostringstream out;
  instance->Write(out);
  return out.str();
}

}  // namespace KelIFC

#endif  // KELIFC_TESTS_SERVER_LOAD_TEXT_H_
