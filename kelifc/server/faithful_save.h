#ifndef KELIFC_SERVER_FAITHFUL_SAVE_H_
#define KELIFC_SERVER_FAITHFUL_SAVE_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "kelifc/server/ifc_server.h"
#include "kelifc/server/iso_statement.h"
#include "kelifc/server/progress_steps.h"
#include "kelifc/server/registered_materials.h"
#include "kelifc/server/text_stream.h"

namespace KelIFC {

class ContentHash;
class ModelOrigin;

/// Writes a model as a copy of its source, in which the statements of changed instances are
/// replaced. SaveOptions::faithful defines what is copied.
///
/// To find the changed instances, each statement is parsed again into an instance outside the
/// model, and the values of both are compared. The memory depends on the longest statement only.
class FaithfulSave {
 public:
  /// `receiver` receives the bytes of the source that Prepare and Write have read. It must outlive
  /// this object.
  FaithfulSave(IfcServer& model, const ProgressHandler& receiver)
      : server(model), handler(receiver) {}

  /// Checks that the source is what it was, and finds the end of its last data section. Returns a
  /// SAVE_RESULT; `reason` receives the cause of a failure.
  int Prepare(std::string& reason);

  /// Writes the file, after Prepare. Returns what Prepare returns. The name of the file goes into
  /// the header.
  int Write(std::ostream& out, std::string_view fileName, std::string& reason);

 private:
  enum class Action { kCopy, kReplace, kRemove };
  class Reader;

  int EndPass(const ContentHash& hash, std::string& reason) const;
  void WriteStatements(Reader& reader, std::ostream& out);
  void WriteStatement(Reader& reader, char* text, std::ostream& out);
  Action Decide(const Reader& reader, std::size_t number, const char* text);
  bool IsUnchanged(std::size_t number, IfcUnknown& stated, const IfcUnknown& kept) const;
  std::unique_ptr<IfcUnknown> ParseApart(const Reader& reader, std::size_t number,
                                         const char* text);
  bool TakeRepeat(std::size_t number);
  std::uint32_t PositionOf(std::uint64_t number) const;
  void WriteInstance(std::ostream& out, std::uint64_t number);
  std::string_view TextOf(std::uint64_t number, std::ostream& out);
  std::vector<std::uint64_t> NoteReferences(std::string_view text);
  void CollectAdditions(std::ostream& out);
  void WriteAdditions(std::string_view separator, std::ostream& out);

  IfcServer& server;
  const ProgressHandler& handler;
  ProgressSteps progress;
  std::shared_ptr<const ModelOrigin> origin;
  std::string targetName;
  std::size_t lastDataEnd = 0;  // which statement ends the last data section; 0 if none does

  // While the file is written:
  IfcServer apart;  // the model of the instances that are parsed for the comparison; else empty
  IsoStatementReader values;
  RegisteredMaterials registered;
  bool isSchemaSeen = false;
  std::unordered_map<std::size_t, std::size_t> repeats;
  std::set<std::uint64_t> placed;     // numbers of later instances that took a statement's place
  std::set<std::uint64_t> additions;  // numbers to write at the end
  TextStream classic;
  TextStream statement;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_FAITHFUL_SAVE_H_
