#include "kelifc/server/faithful_save.h"

#include <algorithm>
#include <istream>
#include <new>
#include <utility>
#include <vector>

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/text/ascii.h"
#include "kelifc/core/text/iso_text.h"
#include "kelifc/core/unknown.h"
#include "kelifc/server/content_hash.h"
#include "kelifc/server/file_header.h"
#include "kelifc/server/model_origin.h"
#include "kelifc/server/same_values.h"
#include "kelifc/server/scanner.h"
#include "kelifc/server/statements.h"

namespace KelIFC {
namespace {

// The progress is reported once for so many bytes of the source.
constexpr std::uint64_t kReportedBytes = std::uint64_t{256} * 1024;

bool IsNameCharacter(char c) { return ascii::IsLetter(c) || ascii::IsDigit(c) || c == '_'; }

// True if a statement begins with a word, in any case.
bool BeginsWith(std::string_view statement, std::string_view word) {
  return ascii::IsSameText(statement.substr(0, word.size()), word) &&
         (statement.size() == word.size() || !IsNameCharacter(statement[word.size()]));
}

// True for the statement that ends the header for a load: FILE_SCHEMA with its attributes.
bool IsSchema(const char* statement) {
  constexpr std::string_view kName = "FILE_SCHEMA";
  return BeginsWith(statement, kName) && *detail::SkipBlanks(statement + kName.size()) == '(';
}

// True if a statement has an attribute that is set. An instance that a class adds during a load has
// none, so one with a value was changed later.
bool HasValue(std::string_view statement) {
  const std::size_t begin = statement.find('(');
  return statement.find_first_not_of("(),$*;\n", begin) != std::string_view::npos;
}

// The number of characters before the first token: blanks and comments.
std::size_t CountGap(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size()) {
    if (IsIsoBlank(text[at]) || text[at] == '\0') {
      ++at;
    } else if (text.substr(at, 2) == "/*") {
      const std::size_t end = text.find("*/", at + 2);
      if (end == std::string_view::npos) break;
      at = end + 2;
    } else {
      break;
    }
  }
  return at;
}

}  // namespace

// Reads the source statement by statement, and the bytes that each one is made of.
class FaithfulSave::Reader {
 public:
  Reader(std::istream& statements, std::istream& bytes) : input(statements), source(bytes) {}

  // Returns the next statement, or null at the end. Appends its bytes to `gap` and `raw`.
  char* Next() {
    char* const text = scanner.Next();
    if (text == nullptr) return nullptr;
    const std::uint64_t begin = std::max(scanner.GetBeginOffset(), offset);
    Append(gap, begin);
    Append(raw, std::max(scanner.GetEndOffset(), begin));
    const std::size_t count = CountGap(raw);
    gap.append(raw, 0, count);
    raw.erase(0, count);
    ++ordinal;
    return text;
  }

  // The number of bytes up to the end of the last statement.
  std::uint64_t GetOffset() const { return offset; }

  // The hash of all bytes, after the last statement.
  const ContentHash& GetHash() const { return input.GetHash(); }

  // Forgets the bytes, which the caller has written.
  void Forget() {
    gap.clear();
    raw.clear();
  }

  // Copies what follows the last statement.
  void CopyRest(std::ostream& out) {
    std::vector<char> block(ScanBuffer::kBlockSize);
    while (source.read(block.data(), static_cast<std::streamsize>(block.size())),
           source.gcount() > 0) {
      out.write(block.data(), source.gcount());
    }
  }

  const char* GetTextEnd() const { return scanner.GetTextEnd(); }

  std::string gap;  // the bytes before the statement: blanks, comments, statements without an end
  std::string raw;  // the bytes of the statement
  std::size_t ordinal = 0;

 private:
  void Append(std::string& target, std::uint64_t end) {
    const std::size_t held = target.size();
    target.resize(held + static_cast<std::size_t>(end - offset));
    source.read(target.data() + held, static_cast<std::streamsize>(end - offset));
    target.resize(held + static_cast<std::size_t>(source.gcount()));
    offset = end;
  }

  HashedInput input;
  IsoScanner scanner{input};
  std::istream& source;
  std::uint64_t offset = 0;  // of the next byte of the source
};

int FaithfulSave::Prepare(std::string& reason) {
  origin = server.origin;
  reason = "the model was not loaded in a way that a faithful save needs";
  if (origin == nullptr) return SAVE_RESULT_NO_SOURCE;
  const auto in = origin->source->Open();
  reason = "the source of the model cannot be read";
  if (!in) return SAVE_RESULT_NO_SOURCE;
  progress = ProgressSteps(handler, 2 * origin->source->GetSize(), kReportedBytes);
  HashedInput hashed(*in);
  IsoScanner scanner(hashed);
  bool isAfterSchema = false;
  bool isInData = false;
  for (std::size_t ordinal = 1; const char* text = scanner.Next(); ++ordinal) {
    if (!progress.Reach(scanner.GetEndOffset())) break;
    const std::string_view found(text, scanner.GetLength());
    isAfterSchema = isAfterSchema || IsSchema(text);
    if (BeginsWith(found, "DATA")) isInData = isAfterSchema;
    if (!isInData || !BeginsWith(found, "ENDSEC")) continue;
    lastDataEnd = ordinal;
    isInData = false;
  }
  return EndPass(hashed.GetHash(), reason);
}

// Returns the result of a pass over the source that has the hash `hash`.
int FaithfulSave::EndPass(const ContentHash& hash, std::string& reason) const {
  reason = "the save was cancelled";
  if (progress.IsStopped()) return SAVE_RESULT_CANCELLED;
  reason = "the source of the model has changed since it was loaded";
  return hash.GetValue() == server.sourceHash ? SAVE_RESULT_SAVED : SAVE_RESULT_SOURCE_CHANGED;
}

int FaithfulSave::Write(std::ostream& out, std::string_view fileName, std::string& reason) {
  const auto statements = origin->source->Open();
  const auto bytes = origin->source->Open();
  reason = "the source of the model cannot be read";
  if (!statements || !bytes) return SAVE_RESULT_NO_SOURCE;
  targetName = fileName;
  apart.SetRelease(server.GetRelease());
  apart.load.reader = &values;
  apart.load.keepsUnknown = origin->keepsUnknown;
  repeats = origin->repeats;
  if (server.GetRelease() == IFC_RELEASE_151) registered.Collect(server);
  Reader reader(*statements, *bytes);
  WriteStatements(reader, out);
  return EndPass(reader.GetHash(), reason);
}

void FaithfulSave::WriteStatements(Reader& reader, std::ostream& out) {
  const std::uint64_t size = origin->source->GetSize();
  while (char* const text = reader.Next()) {
    if (!progress.Reach(size + reader.GetOffset())) return;
    detail::PutText(out, reader.gap);
    if (reader.ordinal == lastDataEnd) WriteAdditions("", out);
    WriteStatement(reader, text, out);
    reader.Forget();
  }
  if (lastDataEnd == 0) WriteAdditions("\n", out);
  reader.CopyRest(out);
  progress.Reach(2 * size);
}

void FaithfulSave::WriteStatement(Reader& reader, char* text, std::ostream& out) {
  if (!isSchemaSeen && BeginsWith(text, "FILE_NAME")) {
    detail::PutText(out, RenewFileName(reader.raw, targetName));
    return;
  }
  const Assignment assignment = isSchemaSeen ? CutAssignment(text) : Assignment();
  if (IsSchema(text)) isSchemaSeen = true;
  switch (Decide(reader, assignment.number, assignment.text)) {
    case Action::kCopy:
      return detail::PutText(out, reader.raw);
    case Action::kRemove:
      return;
    case Action::kReplace:
      WriteInstance(out, assignment.number);
      // A statement without `;` ends with its line.
      if (reader.raw.empty() || reader.raw.back() != ';') detail::PutChar(out, '\n');
  }
}

FaithfulSave::Action FaithfulSave::Decide(const Reader& reader, std::size_t number,
                                          const char* text) {
  if (number == 0) return Action::kCopy;
  const std::unique_ptr<IfcUnknown> stated = ParseApart(reader, number, text);
  // The load did not keep it, or it kept a later statement with the same number.
  if (stated == nullptr || TakeRepeat(number)) return Action::kCopy;
  const IfcUnknown* const kept = server.IfcServer::GetItem(number);
  if (kept == nullptr) return Action::kRemove;
  if (PositionOf(number) >= origin->addedEnd) placed.insert(number);
  if (IsUnchanged(number, *stated, *kept)) return Action::kCopy;
  // A parse that runs out of memory leaves values out, so a difference is checked a second time.
  const std::unique_ptr<IfcUnknown> again = ParseApart(reader, number, text);
  return again != nullptr && IsUnchanged(number, *again, *kept) ? Action::kCopy : Action::kReplace;
}

bool FaithfulSave::IsUnchanged(std::size_t number, IfcUnknown& stated,
                               const IfcUnknown& kept) const {
  return HaveSameValues(stated, kept) ||
         (registered.Complete(number, stated) && HaveSameValues(stated, kept));
}

std::unique_ptr<IfcUnknown> FaithfulSave::ParseApart(const Reader& reader, std::size_t number,
                                                     const char* text) {
  if (apart.items.size() != 0) apart.Reset();
  std::unique_ptr<IfcUnknown> instance(apart.MakeStated(text));
  if (instance == nullptr && origin->keepsUnknown) throw std::bad_alloc();
  if (instance == nullptr) return nullptr;
  instance->SetServer(&apart);
  // A class can ask for the number of its instance. What it adds must not take that number.
  apart.load.parsed = instance.get();
  apart.load.parsedNumber = apart.load.highestNumber = number;
  const IdReplay ids(origin->replacedIds, number);
  instance->Parse(values.Read(text, reader.GetTextEnd()));
  return instance;
}

bool FaithfulSave::TakeRepeat(std::size_t number) {
  const auto found = repeats.find(number);
  if (found == repeats.end() || found->second == 0) return false;
  --found->second;
  return true;
}

std::uint32_t FaithfulSave::PositionOf(std::uint64_t number) const {
  return server.idToIndex.Find(number);
}

// Writes no line end, because the one of the source is copied.
void FaithfulSave::WriteInstance(std::ostream& out, std::uint64_t number) {
  std::string_view text = TextOf(number, out);
  NoteReferences(text);
  text.remove_suffix(1);
  detail::PutText(out, text);
}

// The statement of an instance as its class writes it, with its line end.
std::string_view FaithfulSave::TextOf(std::uint64_t number, std::ostream& out) {
  classic.Clear();
  statement.Clear();
  server.WriteInstance(classic, number);
  if (!classic) out.setstate(std::ios::badbit);
  WriteIsoStatement(statement, classic.GetText());
  return statement.GetText();
}

// Adds the instances to write to which a statement refers, and that a class added during the load.
// Returns the numbers of those that are new in `additions`.
std::vector<std::uint64_t> FaithfulSave::NoteReferences(std::string_view text) {
  std::vector<std::uint64_t> noted;
  bool isInString = false;
  for (std::size_t at = text.find('='); at < text.size(); ++at) {
    if (text[at] == '\'') isInString = !isInString;
    if (isInString || text[at] != '#') continue;
    std::uint64_t number = 0;
    for (; at + 1 < text.size() && ascii::IsDigit(text[at + 1]); ++at) {
      number = 10 * number + static_cast<std::uint64_t>(text[at + 1] - '0');
    }
    const std::uint32_t position = PositionOf(number);
    const bool isAdded = position >= origin->statedEnd && position < origin->addedEnd;
    if (isAdded && additions.insert(number).second) noted.push_back(number);
  }
  return noted;
}

void FaithfulSave::CollectAdditions(std::ostream& out) {
  for (std::uint64_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    const std::uint32_t position = PositionOf(n);
    if (position < origin->statedEnd || server.IfcServer::GetItem(n) == nullptr) continue;
    const bool isNew = position >= origin->addedEnd;
    if (isNew ? placed.count(n) == 0 : HasValue(TextOf(n, out))) additions.insert(n);
  }
  // An instance that is added here can refer to others.
  std::vector<std::uint64_t> open(additions.begin(), additions.end());
  while (!open.empty()) {
    const std::uint64_t number = open.back();
    open.pop_back();
    for (const std::uint64_t added : NoteReferences(TextOf(number, out))) open.push_back(added);
  }
}

// Writes `separator` only if there are additions.
void FaithfulSave::WriteAdditions(std::string_view separator, std::ostream& out) {
  CollectAdditions(out);
  if (!additions.empty()) detail::PutText(out, separator);
  for (const std::uint64_t number : additions) detail::PutText(out, TextOf(number, out));
}

}  // namespace KelIFC
