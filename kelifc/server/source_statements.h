#ifndef KELIFC_SERVER_SOURCE_STATEMENTS_H_
#define KELIFC_SERVER_SOURCE_STATEMENTS_H_

#include <cstddef>
#include <istream>
#include <memory>
#include <string>
#include <string_view>

#include "kelifc/core/statement_view.h"

namespace KelIFC {

class IfcServer;

/// Reads statements from the source of a model, for attributes that the instances do not keep. Only
/// a model that was loaded in the dialect of ISO 10303-21 has a source.
class SourceStatements {
 public:
  /// The model must live as long as this object.
  explicit SourceStatements(const IfcServer& server) : model(server) {}

  /// Returns the attributes of the statement of a number. The view has no attributes if the model
  /// has no source, if the source is gone or has another statement at that place, if the entity of
  /// the statement is not `entity` (in upper case), and if the statement is longer than 64 KiB.
  StatementView Read(std::size_t number, std::string_view entity);

  /// Returns true if the load made this global identifier for an instance whose statement has none
  /// that can be decoded. Returns false if the model has no source.
  bool IsMadeId(std::size_t number, std::string_view id) const;

 private:
  bool ReadText(std::size_t number);

  const IfcServer& model;
  std::unique_ptr<std::istream> stream;  // null before the first read, and without a source
  bool isOpened = false;
  std::string text;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_SOURCE_STATEMENTS_H_
