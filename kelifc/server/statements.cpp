#include "kelifc/server/statements.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/member.h"
#include "kelifc/core/step_file_schema.h"
#include "kelifc/core/text/ascii.h"
#include "kelifc/core/text/reference_text.h"
#include "kelifc/core/unknown.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/iso_statement.h"
#include "kelifc/server/made_statement.h"
#include "kelifc/server/release_tables.h"
#include "kelifc/server/report_collector.h"
#include "kelifc/server/scan_buffer.h"

namespace KelIFC {
namespace {

constexpr std::string_view kHead = "ISO-10303-21";

constexpr std::uint64_t kFirstNegative = std::uint64_t{1} << 63;

// Reads the left side of a statement in its usual form: a plain reference and the `=`, with nothing
// between them. Returns the number 0 for any other form.
Assignment ReadPlainAssignment(char* statement) {
  std::uint32_t number = 0;
  const char* const end = ReadPlainReference(statement, number);
  if (end == nullptr || *end != '=') return {};
  return {number, statement + (end + 1 - statement)};
}

// Cuts a statement whose left side has any other form.
Assignment CutUnusualAssignment(char* statement) {
  char* const sign = std::strchr(statement, '=');
  if (sign == nullptr) return {};
  *sign = '\0';
  MEMBER left;
  left.Parse(statement);
  return {left, sign + 1};
}

// True if the statement begins with the head of a STEP file, in any case.
bool BeginsWithHead(const char* statement) {
  return std::equal(kHead.begin(), kHead.end(), statement,
                    [](char wanted, char found) { return wanted == ascii::ToUpperCase(found); });
}

}  // namespace

Assignment CutAssignment(char* statement) {
  const Assignment plain = ReadPlainAssignment(statement);
  return plain.number != 0 ? plain : CutUnusualAssignment(statement);
}

std::int16_t RegisterStatement(IfcServer* server, char* statement) {
  if (!server->headerSeen) {
    server->headerSeen = BeginsWithHead(statement);
    return server->headerSeen ? 0 : 1;
  }
  return server->schemaRecord == nullptr ? server->ReadHeaderStatement(statement)
                                         : server->RegisterInstance(statement);
}

std::int16_t IfcServer::ReadHeaderStatement(char* statement) {
  std::unique_ptr<IfcUnknown> instance(ParseClass(statement, nullptr));
  auto* record = dynamic_cast<StepFileSchema*>(instance.get());
  if (record == nullptr) {
    // An instance before the schema is lost, but the second pass meets its number.
    const Assignment assignment = CutAssignment(statement);
    load.hasUnread = load.hasUnread || assignment.number != 0;
    NoteNumber(assignment.number);
    NoteStatement(assignment.number, StatedAs::kNothing, assignment.text);
    return 0;
  }
  static_cast<void>(instance.release());
  schemaRecord.reset(record);
  const IFC_RELEASE found = IsIso() ? ReadIsoSchema(statement) : ReadSchema(statement);
  if (found == IFC_RELEASE_NONE) return 2;
  SetRelease(found);
  return load.threads > 1 ? kReleaseFound : 0;
}

std::int16_t IfcServer::RegisterInstance(char* statement) {
  const Assignment assignment = CutAssignment(statement);
  if (assignment.number == 0) return 0;
  NoteNumber(assignment.number);
  load.order.Note(assignment.number);
  std::unique_ptr<IfcUnknown> made(MakeStated(assignment.text));
  const bool isNoted = load.findings != nullptr && made != nullptr;
  load.hasUnread = load.hasUnread || made == nullptr;
  if (isNoted && HasNumber(assignment.number)) {
    NoteRepeat(assignment.number, load.scanner->GetPlace());
  }
  if (load.collector != nullptr) {
    NoteStatement(assignment.number, KindOf(made.get()), assignment.text);
  }
  InsertItem(assignment.number, made.release());
  if (load.isReported && isNoted) NotePlace(assignment.number, load.scanner->GetStatementPlace());
  return 0;
}

// Makes what RegisterMade registers, without the server of the instance. The scanner has returned
// the statement.
MadeStatement IfcServer::MakeStatement(std::size_t id, const char* text,
                                       const ScanBuffer& scanner) {
  MadeStatement statement;
  statement.number = id;
  statement.made.reset(MakeStated(text));
  statement.kind = KindOf(statement.made.get());
  statement.listed = ListedAsOf(statement.made.get());
  statement.place = scanner.GetStatementPlace();
  statement.column = static_cast<std::uint32_t>(scanner.GetPlace().column);
  return statement;
}

// Does the same as RegisterInstance for a statement whose instance is made. `text` is the right
// side of the statement if it is left out.
void IfcServer::RegisterMade(MadeStatement statement, const char* text) {
  NoteNumber(statement.number);
  NoteStatement(statement.number, statement.kind, text);
  if (statement.made == nullptr) {
    load.hasUnread = true;
    return;
  }
  if (HasNumber(statement.number)) {
    NoteRepeat(statement.number, {statement.place.line, statement.column});
  }
  AppendNew(statement.number, std::move(statement.made), statement.listed);
  if (load.isReported) NotePlace(statement.number, statement.place);
}

void IfcServer::NotePlace(std::size_t id, const StatementPlace& place) {
  const std::uint32_t position = idToIndex.Find(id);
  if (position == detail::NumberIndex::kNone) return;
  if (places.size() < position) places.resize(position);
  if (places.size() == position) {
    places.push_back(place);
  } else {
    places[position] = place;
  }
}

void IfcServer::NoteStatement(std::size_t id, StatedAs kind, const char* text) {
  if (load.collector != nullptr && id != 0) load.collector->NoteStatement(id, kind, text);
}

// Makes the instance of a statement. In the dialect of ISO 10303-21, an instance of several types
// has an empty name.
IfcUnknown* IfcServer::MakeStated(const char* text) {
  const bool isComplex = IsIso() && *detail::SkipBlanks(text) == '(';
  IfcUnknown* const made = isComplex ? MakeByRelease("") : ParseClass(text, nullptr);
  return made == nullptr && load.keepsUnknown ? MakeRaw(isComplex ? "" : text) : made;
}

void IfcServer::NoteRepeat(std::size_t id, const SourcePlace& place) {
  load.findings->Note(LoadFinding::kRepeatedNumber, place, {id, "", 0});
  if (IsIso()) ++load.repeats[id];
}

// Returns true if the instance with a number reads the current statement. In the dialect of
// ISO 10303-21 it reads only the one that it was made from, the last one with its number. In the
// classic dialect it reads all statements with its number.
bool IfcServer::IsStatementOf(std::size_t id) {
  if (IsIso() && load.hasUnread) {
    return GetStatementPlace(id).offset == load.scanner->GetBeginOffset();
  }
  return !IsRepeated(id);
}

// Returns true if a later statement has the same number.
bool IfcServer::IsRepeated(std::size_t id) {
  if (load.repeats.empty()) return false;
  const auto found = load.repeats.find(id);
  if (found == load.repeats.end() || found->second == 0) return false;
  --found->second;
  return true;
}

void IfcServer::NoteNumber(std::size_t id) {
  load.highestNumber = std::max<std::uint64_t>(load.highestNumber, id);
  if (id < kFirstNegative) {
    load.highestOrdinary = std::max<std::uint64_t>(load.highestOrdinary, id);
  }
}

// Returns the instance that the statement at an offset made, or null. Only the last one of several
// statements with the same number has an instance. A load without a report on several threads knows
// no places, and has no such numbers.
IfcUnknown* IfcServer::FindStated(std::size_t id, std::uint64_t offset) {
  const std::uint32_t position = idToIndex.Find(id);  // kNone is beyond all places
  if (!load.isReported) return position == detail::NumberIndex::kNone ? nullptr : items[position];
  return position < places.size() && places[position].offset == offset ? items[position] : nullptr;
}

std::int16_t ParseStatement(IfcServer* server, char* statement) {
  const Assignment assignment = CutAssignment(statement);
  if (assignment.number == 0) return 0;
  server->load.order.Note(assignment.number);
  IfcUnknown* const instance = server->GetItem(assignment.number);
  if (instance == nullptr || !server->IsStatementOf(assignment.number)) return 0;
  const char* text = assignment.text;
  IfcServer::LoadState& load = server->load;
  load.statementNumber = assignment.number;
  if (load.reader != nullptr) text = load.reader->Read(text, load.scanner->GetTextEnd());
  load.parsed = instance;
  load.parsedNumber = assignment.number;
  instance->Parse(text);
  load.parsed = nullptr;
  return 0;
}

}  // namespace KelIFC
