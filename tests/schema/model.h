#ifndef KELIFC_TESTS_SCHEMA_MODEL_H_
#define KELIFC_TESTS_SCHEMA_MODEL_H_

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "kelifc/schema/ifc151.h"
#include "kelifc/schema/ifc20.h"
#include "kelifc/schema/ifc2x.h"
#include "kelifc/schema/ifc2x2.h"
#include "kelifc/schema/ifc2x3.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// Returns the text that an instance writes, with the parenthesis that the file writer adds.
inline std::string Text(const IfcUnknown& instance) {
  std::ostringstream out;
  instance.Write(out);
  return out.str() + ")";
}

/// A model of one release. It is filled with statements in two passes, as a load does.
template <class R>
class Model {
 public:
  Model() { server.SetRelease(R::kRelease); }

  /// Makes the instances of all statements `number, text`. Then it reads the statements in order.
  explicit Model(const std::vector<std::pair<std::size_t, std::string>>& statements) : Model() {
    for (const auto& [number, text] : statements) {
      server.InsertItem(number, server.ParseClass(text.c_str(), nullptr));
    }
    for (const auto& [number, text] : statements) {
      if (IfcUnknown* instance = server.GetItem(number)) instance->Parse(text.c_str());
    }
  }

  template <class Type>
  Type* Get(std::size_t number) {
    return dynamic_cast<Type*>(server.GetItem(number));
  }

  std::string TextOf(std::size_t number) {
    const IfcUnknown* instance = server.GetItem(number);
    return instance == nullptr ? "null" : Text(*instance);
  }

  IfcServer server;
};

/// Returns the record that a single statement writes again.
template <class R>
std::string Rewritten(const std::string& text) {
  return Model<R>({{1, text}}).TextOf(1);
}

}  // namespace KelIFC

#endif  // KELIFC_TESTS_SCHEMA_MODEL_H_
